#include "calculators/color_swatch.h"
#include "documents/session_figures.h"
#include "forms/numeric_fields.h"
#include "measures/gravity.h"
#include "measures/rounding.h"
#include "measures/units.h"
#include "reports/row_parts.h"
#include "reports/sections.h"

namespace wortlex {
namespace {

constexpr std::size_t figure_column = 22;
constexpr std::size_t second_figure_column = 17; // behind the first

ReportRow size_row(const ReportSource& source) {
    return {
        unit_label("Batch Size", recipe_figure::batch_size, source, figure_column) +
            figure_place(recipe_figure::batch_size, 8, source) + "    |" +
            unit_label("Wort Size", recipe_figure::wort_size, source, second_figure_column) +
            figure_place(recipe_figure::wort_size, 6, source) + "\n",
        {figure_value(recipe_figure::batch_size, source), figure_value(recipe_figure::wort_size, source)}};
}

ReportRow weight_row(std::string_view what, const Figure& figure, const ReportSource& source) {
    return {unit_label(what, figure, source, figure_column) + figure_place(figure, 8, source) + "\n",
            {figure_value(figure, source)}};
}

// `behind` stands behind the figure, up to the end of the line.
ReportRow row(std::string_view label, const Figure& figure, std::string_view behind,
              const ReportSource& source) {
    return {padded_label(label, figure_column) + figure_place(figure, 8, source) + std::string(behind) + "\n",
            {figure_value(figure, source)}};
}

ReportRow gravity_row(const ReportSource& source) {
    return {"Anticipated OG:       |" + figure_place(recipe_figure::sg, 8, source) +
                "    |Plato:           |" + figure_place(recipe_figure::plato, 6, source) + "\n",
            {figure_value(recipe_figure::sg, source), figure_value(recipe_figure::plato, source)}};
}

ReportRow colour_row(const ReportSource& source) {
    const auto& settings = source.open.settings;
    auto line = row(std::string("Anticipated ") + colour_unit(settings).usual + ":", recipe_figure::colour,
                    "", source);
    line.colour = painted_swatch({source.color_table, settings, source.open.figures.colour.srm});
    return line;
}

ReportRow evaporation_row(const ReportSource& source) {
    const auto& settings = source.open.settings;
    if (settings.evaporation_by_volume == 0)
        return {"Evaporation Rate:     |%6.2f    |Percent Per Hour\n", {source.evaporation_rate}};
    return {"Evaporation Rate:     |%6.2f    |" + std::string(volume_unit(settings).rate) + " Per Hour\n",
            {to_shown_volume(source.evaporation_rate, settings)}};
}

} // namespace

ReportSection specifics_section(const ReportSource& source) {
    auto efficiency_row = row("Brewhouse Efficiency:", recipe_figure::efficiency, " %s", source);
    efficiency_row.values.emplace_back("%");
    return section_of(
        "Recipe Specifics",
        ReportLines{{160, 250, 380},
                    {size_row(source), weight_row("Total Grain", recipe_figure::total_grain, source),
                     weight_row("Total Extract", recipe_figure::total_extract, source), gravity_row(source),
                     colour_row(source), row("Anticipated IBU:", recipe_figure::total_ibu, "", source),
                     efficiency_row,
                     row("Wort Boil Time:", recipe_figure::boil_minutes, "    |Minutes\n", source)}});
}

ReportSection pre_boil_section(const ReportSource& source) {
    const auto& settings = source.open.settings;
    const auto before = raw_pre_boil(source.open.document, source.evaporation_rate, settings);
    const float sg = sg_from_points(before.points);
    return section_of(
        "Pre-Boil Amounts",
        ReportLines{{160, 230, 280, 340},
                    {evaporation_row(source),
                     {"Raw Pre-Boil Amounts - only targeted volume/gravity and evaporation\n", {}},
                     {"rate taken into account:\n\n", {}},
                     {"Pre-Boil Wort Size:               |%6.2f    |" +
                          std::string(volume_unit(settings).usual) + "\n",
                      {to_shown_volume(before.volume, settings)}},
                     {"Pre-Boil Gravity:                  |" + sg_column(6, 3, settings) + "|SG          |" +
                          plato_pattern(6, settings) + "    |Plato\n\n",
                      {trunc_to_precision(sg, 5), trunc_to_precision(sg_to_plato(sg), 3)}}}});
}

} // namespace wortlex
