#include "windows/documents/entry_lines.h"

#include "documents/forms/line_entry.h"
#include "documents/work/recipe_lines.h"
#include "windows/databases/ingredient_windows.h"

namespace wortlex {
namespace {

template <class Record>
std::optional<Record> selected_in(const IngredientList& list) {
    return dynamic_cast<const RecordList<Record>&>(list).selected_record();
}

// Follows the unit of the list.
Live<std::string> example(const Units& units, const char* american, const char* metric) {
    return [&units, american, metric] { return std::string(is_american(units) ? american : metric); };
}

} // namespace

EntryLineUse malt_entry(RecipeEditor& editor, const WindowPorts& ports) {
    const auto& settings = ports.program.settings;
    return {.key = "malt_entry",
            .name = "Add a malt by its name",
            .placeholder = example(settings.weight_units, "9 lb 2-row", "4 kg 2-row"),
            .hint = "Weight and name of a malt; Enter adds it (Ctrl+1)",
            .read = [ports] { return all_malts(ports); },
            .columns = {0, 1},
            .understand = [](const std::string& text) { return read_malt_line(text); },
            .add =
                [&editor](const WrittenLine& written, const IngredientList& list) {
                    if (const auto malt = selected_in<MaltRecord>(list))
                        append_malt(editor, malt_line(*malt, written, editor.open.settings));
                }};
}

EntryLineUse hop_entry(RecipeEditor& editor, const WindowPorts& ports) {
    const auto& settings = ports.program.settings;
    const auto& open = editor.open;
    return {.key = "hop_entry",
            .name = "Add a hop by its name",
            .placeholder = example(settings.hop_weight_units, "1 oz cascade 60", "28 g cascade 60"),
            .hint = "Weight and name of a hop, minutes before the end of the boil or dry, fwh or mh; Enter "
                    "adds it (Ctrl+2)",
            .read = [ports] { return all_hops(ports); },
            .columns = {0, 1, 5, 2},
            .understand =
                [&open](const std::string& text) { return read_hop_line(text, open.document.boil_minutes); },
            .add =
                [&editor, &open](const WrittenLine& written, const IngredientList& list) {
                    if (const auto hop = selected_in<HopRecord>(list))
                        append_hop(editor, hop_line(*hop, written, open.document, open.settings));
                }};
}

EntryLineUse yeast_entry(RecipeEditor& editor, const WindowPorts& ports) {
    return {.key = "yeast_entry",
            .name = "Choose the yeast by its name",
            .placeholder = "us-05",
            .hint = "Name, number or lab of a yeast; Enter takes it (Ctrl+3)",
            .read = [ports] { return all_yeasts(ports); },
            .columns = {0, 1, 2},
            .understand =
                [](const std::string& text) {
                    WrittenLine written;
                    written.name = text;
                    return written;
                },
            .add =
                [&editor](const WrittenLine& /*written*/, const IngredientList& list) {
                    if (const auto yeast = selected_in<YeastRecord>(list)) choose_yeast(editor, *yeast);
                }};
}

} // namespace wortlex
