#include "measures/units.h"
#include "reports/row_parts.h"
#include "reports/sections.h"

namespace wortlex {
namespace {

ReportRow gravity_row(const StyleRecord& style, const Settings& settings) {
    return {"Min OG:  |" + sg_column(5, 3, settings) + "|Max OG:  |" + sg_column(5, 0, settings) + "\n",
            {style.min_og, style.max_og}};
}

ReportRow colour_row(const StyleRecord& style, const Settings& settings) {
    const bool is_srm = settings.color_units == ColorUnits::srm;
    return {std::string("Min Clr: |%5.0f   |Max Clr: |%5.0f  |Color in ") +
                (is_srm ? "SRM, Lovibond\n\n" : "EBC\n\n"),
            {to_shown_colour(style.min_colour, settings), to_shown_colour(style.max_colour, settings)}};
}

} // namespace

ReportSection style_section(const ReportSource& source) {
    const auto& style = source.open.document.style;
    return section_of(style.book == 0 ? "AHA Style and Style Guidelines" : "BJCP Style and Style Guidelines",
                      ReportLines{{90, 170, 260, 340},
                                  {style_row(style),
                                   gravity_row(style, source.open.settings),
                                   {"Min IBU: |%5.0f   |Max IBU: |%5.0f\n", {style.min_ibu, style.max_ibu}},
                                   colour_row(style, source.open.settings)}});
}

} // namespace wortlex
