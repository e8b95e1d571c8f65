#include "reports/mash_rows.h"

#include "brewing/mash_recalculation.h"
#include "measures/units.h"
#include "page/text_sink.h"
#include "reports/row_parts.h"
#include "reports/sections.h"

namespace wortlex {
namespace {

ReportRow type_row(MashKind kind) {
    switch (kind) {
    case MashKind::partial_mash:
        return {"Mash Type: |Partial Mash\n", {}};
    case MashKind::multi_step:
        return {"Mash Type: |Multi Step\n", {}};
    case MashKind::decoction:
        return {"Mash Type: |Decoction\n", {}};
    default:
        return {"Mash Type: |Single Step\n", {}};
    }
}

constexpr std::size_t label_column = 12;

void add_amounts(std::vector<ReportRow>& rows, const ReportSource& source) {
    const auto& settings = source.open.settings;
    const float water = source.open.document.simple_mash.dough_in_water;
    rows.push_back(
        {padded_label(std::string("Grain ") + grain_unit(settings).usual + ":", label_column) + "%6.2f\n",
         {figure_value(recipe_figure::mash_grain, source)}});
    for (const auto& [shown, unit] : shown_waters(water, settings))
        rows.push_back({padded_label("Water " + std::string(unit) + ":", label_column) +
                            "%6.2f - Before Additional Infusions\n",
                        {shown}});
    const std::string ratio = is_american(settings.volume_units) ? "Qts Water Per Lbs" : "L Water Per kg";
    rows.push_back({ratio + " Grain: |%2.2f - Before Additional Infusions\n",
                    {shown_ratio(water, source.open.figures.mash_grain, settings.volume_units)}});
    rows.push_back({"Tun Thermal Mass:  |%8.2f\n", {settings.tun_thermal_mass}});
    rows.push_back({"Grain Temp:        |%8.0f " + std::string(temperature_unit(settings).usual) + "\n\n",
                    {shown_degrees(source.open.document.mash.grain_temperature, settings)}});
}

void add_rest(std::vector<ReportRow>& rows, std::string_view name, const Rest& rest,
              const Settings& settings) {
    if (!rest.is_present()) return;
    rows.push_back({padded_label(std::string(name) + " Temp:", 28) + "%3d  |Time: |%3d\n",
                    {shown_degrees(rest.temperature, settings), rest.minutes}});
}

void add_rests(std::vector<ReportRow>& rows, const SimpleMash& mash, const Settings& settings) {
    add_rest(rows, "Dough In", mash.dough_in, settings);
    if (mash.mash_kind != MashKind::single_step) {
        add_rest(rows, "Acid Rest", mash.acid, settings);
        add_rest(rows, "Protein Rest", mash.protein, settings);
        add_rest(rows, "Intermediate Rest", mash.intermediate, settings);
    }
    add_rest(rows, "Saccharification Rest", mash.saccharification, settings);
    add_rest(rows, "Mash-out Rest", mash.mash_out, settings);
    add_rest(rows, "Sparge", mash.sparge, settings);
}

// In gallons and barrels print has always spelt it so.
ReportRow volume_row(const ReportSource& source) {
    const auto& settings = source.open.settings;
    const std::string unit(volume_unit(settings).usual);
    const std::string additional = is_american(settings.volume_units) ? "Additioanl" : "Additional";
    return {padded_label("\nTotal Mash Volume " + unit + ":", 24) +
                "%8.2f  |- After Additional Infusions\n\n",
            {figure_value(recipe_figure::mash_volume, source)},
            "Total Mash Volume " + unit + ":|%0.2f - After " + additional + " Infusions"};
}

} // namespace

std::vector<ShownWater> shown_waters(float quarts, const Settings& settings) {
    std::vector<ShownWater> waters{{quarts_to_shown(quarts, settings), mash_water_unit(settings).usual}};
    if (is_pro(settings))
        waters.push_back({to_shown_volume(narrow(quarts / 4.0), settings), volume_unit(settings).usual});
    return waters;
}

std::vector<ReportBlock> simple_schedule(const ReportSource& source) {
    const auto& mash = source.open.document.simple_mash;
    if (mash.mash_kind == MashKind::none) return {};
    ReportLines lines{{170, 210, 250}, {type_row(mash.mash_kind)}};
    add_amounts(lines.rows, source);
    add_rests(lines.rows, mash, source.open.settings);
    lines.rows.push_back(volume_row(source));
    return {lines};
}

ReportSection mash_section(const ReportSource& source) {
    ReportSection section{"Mash Schedule", {}};
    section.blocks =
        has_complex_schedule(source.open.document) ? complex_schedule(source) : simple_schedule(source);
    return section;
}

} // namespace wortlex
