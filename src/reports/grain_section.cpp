#include "measures/units.h"
#include "reports/row_parts.h"
#include "reports/sections.h"

#include <algorithm>
#include <array>

namespace wortlex {
namespace {

constexpr std::size_t grain_name_width = 29;
constexpr std::size_t origin_column_width = 14;

std::string_view potential_scale(PotentialDisplay display) {
    constexpr std::array<std::string_view, 4> scales = {
        "SG per pound per gallon", "Points per pound per gallon", "IOB - HWE", "Plato per pound per gallon"};
    return scales[std::min(static_cast<std::size_t>(display), scales.size() - 1)];
}

std::string_view extract_scale(const Settings& settings) {
    const std::array<std::string_view, 5> scales = {"SG", "Points", extract_weight_word(settings), "Plato",
                                                    "% of Total Extract"};
    return scales[std::min(static_cast<std::size_t>(settings.extract_display), scales.size() - 1)];
}

// "Exract" has always been spelt so.
ReportRow note(const ReportSource& source) {
    const auto& settings = source.open.settings;
    if (!source.view.show_potential) return {"\nExract represented as %s.\n\n", {extract_scale(settings)}};
    if (settings.potential_display == PotentialDisplay::percent_yield)
        return {"\nPotential represented as %s.\n\n",
                {"% Yield - " + std::string(yield_word(settings.yield_type))}};
    return {"\nPotential represented as %s.\n\n", {potential_scale(settings.potential_display)}};
}

// SG has its own precision; every other scale shares that of Plato.
std::string value_column(const ReportSource& source) {
    const auto& settings = source.open.settings;
    const bool is_sg = source.view.show_potential ? settings.potential_display == PotentialDisplay::sg
                                                  : settings.extract_display == ExtractDisplay::sg;
    return is_sg ? sg_column(5, 3, settings) : plato_column(5, 3, settings);
}

ReportRow row(const ReportSource& source, std::size_t line, const std::string& format) {
    const auto& malt = source.open.document.malts[line];
    const float total = source.open.figures.total_grain;
    return {format,
            {total > 0 ? double{malt.amount} / total * 100 : 0.0,
             grain_to_shown(malt.amount, source.open.settings),
             {line_text(malt.record.name), grain_name_width},
             {line_text(malt.record.origin), origin_column_width},
             malt_value(source.open, source.view, line),
             to_shown_colour(malt.record.colour, source.open.settings)}};
}

} // namespace

ReportSection grain_section(const ReportSource& source) {
    ReportTable list;
    list.columns = {{"%", 3, 0, 45, HtmlAlign::right},
                    {"Amount", 9, 40, 85, HtmlAlign::right},
                    {"Name", 20, 120, 205},
                    {"Origin", 50, 335, 90},
                    {source.view.show_potential ? "Potential" : "Extract", 64, 430, 75, HtmlAlign::right},
                    {colour_unit(source.open.settings).usual, 74, 500, 50, HtmlAlign::right}};
    const auto format = " %4.1f |%8.2f " + std::string(grain_unit(source.open.settings).column) +
                        " |%s |%s |" + value_column(source) + "|%4.0f\n";
    for (std::size_t i = 0; i < source.open.document.malts.size(); ++i)
        list.rows.push_back(row(source, i, format));
    return section_of("Grain/Extract/Sugar", std::move(list), ReportLines{{}, {note(source)}});
}

} // namespace wortlex
