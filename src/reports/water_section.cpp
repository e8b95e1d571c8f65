#include "reports/row_parts.h"
#include "reports/sections.h"

#include <array>

namespace wortlex {
namespace {

struct IonWords {
    std::string_view name;
    std::string_view symbol;
    float WaterRecord::*ppm;
};

constexpr std::array profile_ions = {IonWords{"Calcium", "(Ca):", &WaterRecord::calcium},
                                     IonWords{"Magnesium", "(Mg):", &WaterRecord::magnesium},
                                     IonWords{"Sodium", "(Na):", &WaterRecord::sodium},
                                     IonWords{"Sulfate", "(SO4):", &WaterRecord::sulfate},
                                     IonWords{"Chloride", "(Cl):", &WaterRecord::chloride},
                                     IonWords{"biCarbonate", "(HCO3):", &WaterRecord::bicarbonate}};

// A competition form has a blank before the bracket.
std::string ion_label(const IonWords& ion, bool is_on_form) {
    constexpr std::size_t column = 19;
    return padded_label(std::string(ion.name).append(is_on_form ? " " : "").append(ion.symbol),
                        column + (is_on_form ? 1 : 0));
}

} // namespace

ReportSection water_section(const ReportSource& source) {
    const auto& water = source.open.document.water;
    const bool is_on_form = source.is_competition_form;
    ReportLines lines{{120},
                      {{"Profile:           |%s\n", {line_text(water.name)}},
                       {"Profile known for: |%s\n\n", {line_text(water.known_for)}}}};
    for (const auto& ion : profile_ions)
        lines.rows.push_back({ion_label(ion, is_on_form) + "%7.1f ppm\n", {water.*ion.ppm}});
    lines.rows.back().format += "\n";
    if (!is_on_form) lines.rows.push_back({"pH: |%0.2f\n\n\n", {water.ph}});
    auto section = section_of("Water Profile", std::move(lines));
    if (source.open.session != nullptr && !is_on_form) section.print_heading = "Recipe Water Profile";
    return section;
}

} // namespace wortlex
