#include "calculators/color_swatch.h"
#include "documents/session_figures.h"
#include "forms/numeric_fields.h"
#include "measures/gravity.h"
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

void add_pre_boil(std::vector<ReportRow>& rows, std::string_view what, const PreBoil& before,
                  const Settings& settings) {
    constexpr std::size_t kettle_size_column = 34, kettle_gravity_column = 35;
    const float sg = sg_from_points(before.points);
    rows.push_back({padded_label(std::string(what) + " Wort Size:", kettle_size_column) + "%6.2f    |" +
                        volume_unit(settings).usual + "\n",
                    {to_shown_volume(before.volume, settings)}});
    rows.push_back({padded_label(std::string(what) + " Gravity:", kettle_gravity_column) +
                        sg_column(6, 3, settings) + "|SG          |" + plato_pattern(6, settings) +
                        "    |Plato\n\n",
                    gravity_values(sg)});
}

void add_fermented(std::vector<ReportRow>& rows, const SessionDocument& session, const Settings& settings) {
    const auto figures = update_attenuation(session, settings);
    rows.push_back(gravity_line({.label = "Actual OG:  |"}, session.actual_og, settings));
    rows.push_back(gravity_line({.label = "Actual FG:  |"}, session.actual_fg, settings));
    rows.push_back({"Alc by Weight: |%5.2f      |by Volume: |%5.2f  |From Measured Gravities.\n",
                    {figures.alcohol_by_weight, figures.alcohol_by_volume}});
    rows.push_back(
        {"ADF:           |%5.1f      |RDF        |%5.1f  |Apparent & Real Degree of Fermentation.\n\n",
         {figures.apparent_attenuation, figures.real_attenuation}});
}

void add_efficiency(std::vector<ReportRow>& rows, const ReportSource& source) {
    const auto& document = source.open.document;
    const auto figures = recorded_efficiency(document, *source.open.session, source.open.settings);
    rows.push_back({"Actual Mash System Efficiency: |%0.0f %s\n", {double{figures.efficiency} * 100, "%"}});
    rows.push_back(
        {"Anticipated Points From Mash:  |%0.2f\n", {double{figures.mash_points} * document.efficiency}});
    rows.push_back({"Actual Points From Mash:       |%0.2f\n\n", {figures.actual_mash_points}});
}

} // namespace

ReportSection specifics_section(const ReportSource& source) {
    auto efficiency_row = row("Brewhouse Efficiency:", recipe_figure::efficiency, " %s", source);
    efficiency_row.values.emplace_back("%");
    ReportLines lines{{160, 250, 380},
                      {size_row(source), weight_row("Total Grain", recipe_figure::total_grain, source),
                       weight_row("Total Extract", recipe_figure::total_extract, source), gravity_row(source),
                       colour_row(source), row("Anticipated IBU:", recipe_figure::total_ibu, "", source),
                       efficiency_row,
                       row("Wort Boil Time:", recipe_figure::boil_minutes, "    |Minutes\n", source)}};
    auto section = section_of("Recipe Specifics", std::move(lines));
    if (const auto* const session = source.open.session; session != nullptr) {
        ReportLines measured{{160, 210, 280, 330}, {}};
        add_fermented(measured.rows, *session, source.open.settings);
        add_efficiency(measured.rows, source);
        section.blocks.emplace_back(std::move(measured));
    }
    return section;
}

ReportSection pre_boil_section(const ReportSource& source) {
    const auto& settings = source.open.settings;
    ReportLines lines{{160, 230, 280, 340},
                      {evaporation_row(source),
                       {"Raw Pre-Boil Amounts - only targeted volume/gravity and evaporation\n", {}},
                       {"rate taken into account:\n\n", {}}}};
    add_pre_boil(lines.rows, "Pre-Boil",
                 raw_pre_boil(source.open.document, source.evaporation_rate, settings), settings);
    if (const auto* const session = source.open.session; session != nullptr) {
        lines.rows.push_back(
            {"With sparge water, mash water, additional infusions, vessel losses, top-up\n", {}});
        lines.rows.push_back({"water and evaporation rate recorded in the Water Needed Calculator:\n\n", {}});
        add_pre_boil(lines.rows, "Water Needed Pre-Boil",
                     water_pre_boil(source.open.document, session->water_needs, settings), settings);
    }
    return section_of("Pre-Boil Amounts", std::move(lines));
}

} // namespace wortlex
