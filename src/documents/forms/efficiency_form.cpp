#include "documents/forms/efficiency_form.h"

#include "documents/session_figures.h"
#include "measures/gravity.h"
#include "measures/unit_words.h"
#include "measures/units.h"
#include "records/documents/document_files.h"

#include <utility>

namespace wortlex {
namespace {

constexpr float highest_recorded = 5;

constexpr const char* in_kettle = "The most accurate measure will be taken immediately after sparging ends, "
                                  "after all top-up water, extracts "
                                  "and sugars have been added, and before the boil begins.";
constexpr const char* in_fermenter =
    "All losses from the Kettle to the Fermenter are taken from the Water Needed section and added to the "
    "recorded volume. Cooling shrinkage is also applied to losses.";

std::string volume_label(const char* of, const Settings& settings) {
    return std::string(of) + " (" + volume_unit(settings).capital + "):";
}

EfficiencyFigures recorded_figures(const OpenDocument& open) {
    return recorded_efficiency(open.document, *open.session, open.settings);
}

// The figures that follow from the recording, each worked out as it is shown.
class Answers {
public:
    Answers(Rows& rows, const OpenDocument& open) : rows_(rows), open_(open) {}

    template <class Read>
    ShownRow& points(const char* key, Read read) {
        return rows_.shown_plato(
            key, [&open = open_, read] { return narrow(read(recorded_figures(open), open.document)); },
            open_.settings);
    }

private:
    Rows& rows_;
    const OpenDocument& open_;
};

void answer_rows(Rows& rows, const OpenDocument& open) {
    rows.shown_number(
            "actual_efficiency", [&open] { return narrow(recorded_figures(open).efficiency * 100.0); },
            "%0.0f")
        .label("Actual Mash System Efficiency:")
        .unit("%");
    rows.shown_number(
            "recipe_efficiency",
            [&open] { return static_cast<float>(whole_percent(open.document.efficiency)); }, "%0.0f")
        .label("Recipe Efficiency Setting:")
        .unit("%");
}

using Kettle = std::function<PreBoil()>;

void target_rows(Rows& rows, const OpenDocument& open) {
    const auto& settings = open.settings;
    const std::array<std::pair<const char*, Kettle>, 3> kettles = {
        {{"water",
          [&open] { return water_pre_boil(open.document, open.session->water_needs, open.settings); }},
         {"raw",
          [&open] {
              return raw_pre_boil(open.document, open.session->water_needs.evaporation_rate, open.settings);
          }},
         {"post", [&open] { return end_of_boil(open.document, open.settings); }}}};
    auto& grid = rows.grid("targets",
                           {"Water Needed Pre-Boil Targets:", "Raw Pre-Boil Targets:", "Post-Boil Targets:"});
    auto& volumes = grid.line([&settings] { return volume_label("Target Volume", settings); });
    auto& gravities = grid.line("Estimated OG:");
    auto& platos = grid.line("Plato:");
    for (const auto& [name, kettle] : kettles) {
        const std::string key = name;
        const auto sg = [kettle = kettle] { return sg_from_points(kettle().points); };
        volumes.shown_number(
            key + "_volume",
            [kettle = kettle, &settings] { return to_shown_volume(kettle().volume, settings); }, "%0.2f");
        gravities.shown_sg(key + "_sg", sg, settings);
        platos.shown_plato(
            key + "_plato", [sg] { return sg_to_plato(sg()); }, settings);
    }
}

void volume_rows(Rows& rows, const OpenDocument& open) {
    const auto& settings = open.settings;
    auto& session = *open.session;
    const auto shown = [&settings](float gallons) { return to_shown_volume(gallons, settings); };
    rows.number("recorded_volume", session.tail.recorded_volume)
        .label([&settings] { return volume_label("Recorded &Volume", settings); })
        .shown_as(shown, [&settings](float volume) { return from_shown_volume(volume, settings); })
        .range(0.0F, 100000.0F)
        .step(0.5F);
    rows.shown_number(
            "losses", [&open, shown] { return shown(recording_losses(*open.session, open.settings)); },
            "%0.2f")
        .label("+Losses");
    rows.shown_number(
            "total_volume", [&open, shown] { return shown(recorded_gallons(*open.session, open.settings)); },
            "%0.2f")
        .label("Total");
}

void recording_rows(Rows& rows, RecipeEditor& editor, const EfficiencyActions& actions) {
    const auto& open = editor.open;
    auto& tail = open.session->tail;
    rows.choice("measured_in_fermenter", tail.measured_in_fermenter,
                {"Measurement Taken in &Kettle", "Measurement Taken In &Fermenter"})
        .look(ChoiceRow::Look::down);
    rows.note("where_note", [&tail] { return tail.measured_in_fermenter != 0 ? in_fermenter : in_kettle; });
    volume_rows(rows, open);
    const auto gravity = gravity_fields(rows, "recorded_og", "Recorded O&G:", tail.recorded_og,
                                        highest_recorded, open.settings);
    gravity.plato.label("P&lato:");
    const auto tell = [&editor] { tell_change(editor); };
    measure_button(rows, "hydrometer", "&Hydro Calc", tail.recorded_og, highest_recorded, actions.hydrometer,
                   tell);
    measure_button(rows, "refractometer", "&Refractometer", tail.recorded_og, highest_recorded,
                   actions.refractometer, tell);
}

void point_rows(Rows& rows, const OpenDocument& open) {
    auto& grid = rows.grid("points", {"Total Points", "Points from Mash", "Points From Extract/Sugar"});
    Answers most(grid.line("At 100% extraction from the maximum mash potential:"), open);
    most.points("total_points", [](const auto& f, const auto&) { return double{f.total_points}; });
    most.points("mash_points", [](const auto& f, const auto&) { return double{f.mash_points}; });
    most.points("extract_points", [](const auto& f, const auto&) { return double{f.extract_points}; });
    Answers aimed(grid.line("With the recipe efficiency setting, you should have achieved:"), open);
    const auto from_mash = [](const auto& f, const auto& d) { return double{f.mash_points} * d.efficiency; };
    aimed.points("aimed_total",
                 [from_mash](const auto& f, const auto& d) { return from_mash(f, d) + f.extract_points; });
    aimed.points("aimed_mash", from_mash);
    aimed.points("aimed_extract", [](const auto& f, const auto&) { return double{f.extract_points}; });
    Answers(rows, open)
        .points("actual_mash_points", [](const auto& f, const auto&) { return double{f.actual_mash_points}; })
        .label("Actual Points From Mash:");
}

// An extract brew has no mash to be judged.
void enable_with_mash(Form& form, const BrewDocument& document) {
    for (const auto* const key : {"measured_in_fermenter", "recorded_volume", "recorded_og",
                                  "recorded_og_plato", "hydrometer", "refractometer"}) {
        auto& row = form.row(key);
        row.is_enabled = [&document] { return document.recipe_kind != RecipeKind::extract; };
        row.reason_text = "An extract recipe has no mash";
    }
}

} // namespace

void efficiency_form(Form& form, RecipeEditor& editor, const EfficiencyActions& actions) {
    const auto& open = editor.open;
    auto& tail = open.session->tail;
    form.restore_on_cancel(tail, &SessionTail::recorded_volume, &SessionTail::recorded_og,
                           &SessionTail::measured_in_fermenter, &SessionTail::recorded_og_reading);
    repair_recording(*open.session, open.document);
    answer_rows(form.group(), open);
    target_rows(form.group("Targets"), open);
    recording_rows(form.group("Recorded"), editor, actions);
    point_rows(form.group("Points"), open);
    form.group().button("print", "&Print", actions.print);
    enable_with_mash(form, open.document);
}

} // namespace wortlex
