#include "reports/row_parts.h"
#include "reports/sections.h"

#include <array>

namespace wortlex {
namespace {

constexpr std::array ion_names = {"Calcium", "Magnesium", "Sodium", "Sulfate", "Chloride", "biCarbonate"};
static_assert(ion_names.size() == ions.size());

// A competition form has a blank before the bracket.
ReportRow profile_row(std::size_t ion, const WaterRecord& water, bool is_on_form) {
    constexpr std::size_t column = 19;
    const auto label =
        std::string(ion_names.at(ion)) + (is_on_form ? " (" : "(") + ions.at(ion).symbol + "):";
    return {padded_label(label, column + (is_on_form ? 1 : 0)) + "%7.1f ppm\n", {water.*ions.at(ion).ppm}};
}

} // namespace

ReportSection water_section(const ReportSource& source) {
    const auto& water = source.open.document.water;
    const bool is_on_form = source.is_competition_form;
    ReportLines lines{{120},
                      {{"Profile:           |%s\n", {line_text(water.name)}},
                       {"Profile known for: |%s\n\n", {line_text(water.known_for)}}}};
    for (std::size_t ion = 0; ion < ions.size(); ++ion)
        lines.rows.push_back(profile_row(ion, water, is_on_form));
    lines.rows.back().format += "\n";
    if (!is_on_form) lines.rows.push_back({"pH: |%0.2f\n\n\n", {water.ph}});
    auto section = section_of("Water Profile", std::move(lines));
    if (source.open.session != nullptr && !is_on_form) section.print_heading = "Recipe Water Profile";
    return section;
}

} // namespace wortlex
