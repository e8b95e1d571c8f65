#include "documents/forms/cell_typing.h"

#include "documents/forms/hop_amount.h"
#include "documents/forms/malt_amount.h"
#include "documents/forms/typed_amount.h"

#include <algorithm>

namespace wortlex {
namespace {

enum MaltCell : std::size_t { malt_weight = 4, malt_share = 5 };
enum HopCell : std::size_t { hop_alpha = 2, hop_weight = 4, hop_time = 5 };

constexpr float least_share = 0.1F, most_share = 99.9F; // percent
constexpr float most_alpha = 100;

// The words for a number that is none.
std::string number_fault(std::string_view text, std::string_view wanted) {
    const auto digits = text.substr(0, std::min(text.find_first_not_of("0123456789.,"), text.size()));
    if (is_ambiguous(digits)) return std::string(digits) + " can be read in two ways";
    return std::string(wanted);
}

std::string weight_fault(std::string_view text) {
    return typed_weight(text) ? "" : number_fault(text, "A weight, such as 9 lb or 1.5 kg");
}

// A percent sign may stand behind it.
std::optional<float> typed_percent(std::string_view text) {
    text = without_blanks(text);
    if (text.ends_with('%')) text.remove_suffix(1);
    return typed_number(text);
}

std::string share_fault(const BrewDocument& document, std::string_view text) {
    if (document.malts.size() < 2) return "It is the only malt";
    const auto percent = typed_percent(text);
    if (!percent) return number_fault(text, "Percent of the grain");
    return *percent < least_share || *percent > most_share ? "0.1 to 99.9" : "";
}

std::string alpha_fault(std::string_view text) {
    const auto alpha = typed_percent(text);
    if (!alpha) return number_fault(text, "Percent of alpha acid");
    return *alpha > most_alpha ? "0 to 100" : "";
}

std::optional<std::int16_t> typed_time(const BrewDocument& document, std::string_view text) {
    return boil_time_of(without_minutes(text), document.boil_minutes);
}

std::string time_fault(const BrewDocument& document, std::string_view text) {
    return typed_time(document, text) ? "" : "Minutes before the end of the boil, dry, FWH or MH";
}

void take_weight(RecipeEditor& editor, std::size_t row, std::string_view text) {
    auto weight = typed_weight(text);
    if (!weight) return;
    weight->number = std::min(weight->number, most_malt_weight);
    auto line = editor.open.document.malts[row];
    line.amount = pounds_of(*weight, editor.open.settings);
    replace_malt(editor, row, line);
}

void take_share(RecipeEditor& editor, std::size_t row, std::string_view text) {
    if (share_fault(editor.open.document, text).empty()) set_malt_share(editor, row, *typed_percent(text));
}

void take_in_hop(RecipeEditor& editor, std::size_t row, std::size_t column, std::string_view text) {
    const auto& open = editor.open;
    auto line = open.document.hops[row];
    if (column == hop_alpha) {
        line.alpha = std::min(typed_percent(text).value_or(line.alpha), most_alpha);
    } else if (column == hop_weight) {
        if (auto weight = typed_weight(text)) {
            weight->number = std::min(weight->number, most_hop_weight);
            line.amount = ounces_of(*weight, open.settings);
        }
    } else {
        line.boil_time = typed_time(open.document, text).value_or(line.boil_time);
    }
    replace_hop(editor, row, line);
}

std::string without_width(const std::string& cell) {
    return std::string(without_blanks(cell));
}

} // namespace

CellTyping malt_cells(RecipeEditor& editor) {
    return {.columns = {malt_weight, malt_share},
            .text =
                [&editor](std::size_t row, std::size_t column) {
                    return without_width(malt_cell(editor.open, editor.view, row, column));
                },
            .fault =
                [&editor](std::size_t, std::size_t column, const std::string& text) {
                    return column == malt_weight ? weight_fault(text)
                                                 : share_fault(editor.open.document, text);
                },
            .take =
                [&editor](std::size_t row, std::size_t column, const std::string& text) {
                    column == malt_weight ? take_weight(editor, row, text) : take_share(editor, row, text);
                }};
}

CellTyping hop_cells(RecipeEditor& editor) {
    const auto& document = editor.open.document;
    return {.columns = {hop_weight, hop_time, hop_alpha},
            .text =
                [&editor, &document](std::size_t row, std::size_t column) {
                    if (column == hop_time)
                        return without_width(
                            boil_time_text(document.hops[row].boil_time, document.boil_minutes));
                    return without_width(hop_cell(editor.open, editor.view, row, column));
                },
            .fault =
                [&document](std::size_t, std::size_t column, const std::string& text) {
                    if (column == hop_alpha) return alpha_fault(text);
                    return column == hop_weight ? weight_fault(text) : time_fault(document, text);
                },
            .take = [&editor](std::size_t row, std::size_t column,
                              const std::string& text) { take_in_hop(editor, row, column, text); }};
}

} // namespace wortlex
