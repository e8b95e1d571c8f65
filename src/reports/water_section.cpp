#include "reports/row_parts.h"
#include "reports/sections.h"

namespace wortlex {

ReportSection water_section(const ReportSource& source) {
    const auto& water = source.open.document.water;
    return section_of("Water Profile",
                      ReportLines{{120},
                                  {{"Profile:           |%s\n", {line_text(water.name)}},
                                   {"Profile known for: |%s\n\n", {line_text(water.known_for)}},
                                   {"Calcium(Ca):       |%7.1f ppm\n", {water.calcium}},
                                   {"Magnesium(Mg):     |%7.1f ppm\n", {water.magnesium}},
                                   {"Sodium(Na):        |%7.1f ppm\n", {water.sodium}},
                                   {"Sulfate(SO4):      |%7.1f ppm\n", {water.sulfate}},
                                   {"Chloride(Cl):      |%7.1f ppm\n", {water.chloride}},
                                   {"biCarbonate(HCO3): |%7.1f ppm\n\n", {water.bicarbonate}},
                                   {"pH: |%0.2f\n\n\n", {water.ph}}}});
}

} // namespace wortlex
