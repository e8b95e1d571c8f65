#include "calculators/color_swatch.h"
#include "documents/session_figures.h"
#include "measures/gravity.h"
#include "measures/rounding.h"
#include "measures/units.h"
#include "reports/sections.h"
#include "reports/unit_words.h"

namespace wortlex {
namespace {

constexpr std::size_t figure_column = 22;
constexpr std::size_t second_figure_column = 17; // behind the first

ReportRow size_row(const ReportSource& source) {
    const auto& settings = source.open.settings;
    const auto unit = volume_word(settings);
    return {unit_label("Batch Size", unit, figure_column) + "%8.2f    |" +
                unit_label("Wort Size", unit, second_figure_column) + "%6.2f\n",
            {to_shown_volume(source.open.document.batch_size, settings),
             to_shown_volume(source.open.document.wort_size, settings)}};
}

ReportRow weight_row(std::string_view what, double pounds, const Settings& settings) {
    return {unit_label(what, grain_word(settings), figure_column) + "%8.2f\n",
            {grain_to_shown(narrow(pounds), settings)}};
}

// Gravities are cut off, not rounded, as in every field.
ReportRow gravity_row(const ReportSource& source) {
    const float sg = hop_gravity(source.open.document);
    return {"Anticipated OG:       |" + sg_place(8, source.open.settings) + "    |Plato:           |" +
                plato_place(6, source.open.settings) + "\n",
            {trunc_to_precision(sg, 5), trunc_to_precision(sg_to_plato(sg), 3)}};
}

ReportRow colour_row(const ReportSource& source) {
    const auto& settings = source.open.settings;
    const float srm = source.open.figures.colour.srm;
    return {"Anticipated " + std::string(colour_word(settings)) + ":      |%8.1f\n",
            {to_shown_colour(srm, settings)},
            {},
            painted_swatch({source.color_table, settings, srm})};
}

ReportRow evaporation_row(const ReportSource& source) {
    const auto& settings = source.open.settings;
    if (settings.evaporation_by_volume == 0)
        return {"Evaporation Rate:     |%6.2f    |Percent Per Hour\n", {source.evaporation_rate}};
    return {"Evaporation Rate:     |%6.2f    |" + std::string(volume_word(settings)) + " Per Hour\n",
            {to_shown_volume(source.evaporation_rate, settings)}};
}

} // namespace

ReportSection specifics_section(const ReportSource& source) {
    const auto& document = source.open.document;
    const auto& settings = source.open.settings;
    return section_of(
        "Recipe Specifics",
        ReportLines{{160, 250, 380},
                    {size_row(source),
                     weight_row("Total Grain", source.open.figures.total_grain, settings),
                     weight_row("Total Extract", source.open.figures.total_extract_pounds, settings),
                     gravity_row(source),
                     colour_row(source),
                     {"Anticipated IBU:      |%8.1f\n", {document.total_ibu}},
                     {"Brewhouse Efficiency: |%8.0f %s\n", {document.efficiency * 100.0, "%"}},
                     {"Wort Boil Time:       |%8d    |Minutes\n\n", {document.boil_minutes}}}});
}

ReportSection pre_boil_section(const ReportSource& source) {
    const auto& settings = source.open.settings;
    const auto before = raw_pre_boil(source.open.document, source.evaporation_rate, settings);
    const float sg = narrow(before.points / 1000.0 + 1);
    return section_of(
        "Pre-Boil Amounts",
        ReportLines{
            {160, 230, 280, 340},
            {evaporation_row(source),
             {"Raw Pre-Boil Amounts - only targeted volume/gravity and evaporation\n", {}},
             {"rate taken into account:\n\n", {}},
             {"Pre-Boil Wort Size:               |%6.2f    |" + std::string(volume_word(settings)) + "\n",
              {to_shown_volume(before.volume, settings)}},
             {"Pre-Boil Gravity:                  |" + sg_column(6, 3, settings) + "|SG          |" +
                  plato_place(6, settings) + "    |Plato\n\n",
              {trunc_to_precision(sg, 5), trunc_to_precision(sg_to_plato(sg), 3)}}}});
}

} // namespace wortlex
