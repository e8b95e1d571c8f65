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

// The water added on the way through a session's rests, as far as there is any.
struct AddedWater {
    const char* step;
    const Infusion& infusion;
};

std::vector<AddedWater> infusions_of(const ReportSource& source) {
    std::vector<AddedWater> added;
    if (source.open.session == nullptr) return added;
    const auto& extras = source.open.session->infusions;
    if (extras.heat_type != SimpleHeat::infusion) return added;
    for (const auto& water :
         {AddedWater{"Protein Step:", extras.protein}, AddedWater{"Intermediate Step:", extras.intermediate},
          AddedWater{"Saccharification Step:", extras.saccharification},
          AddedWater{"Mash Out Step:", extras.mash_out}})
        if (water.infusion.amount != 0) added.push_back(water);
    return added;
}

// The litre has a spelling of its own here.
std::string infusion_unit(const Settings& settings) {
    return is_american(settings.volume_units) ? mash_water_unit(settings).usual : "Ltr";
}

void add_infusions(std::vector<ReportRow>& rows, const ReportSource& source) {
    constexpr std::size_t step_column = 23;
    const auto added = infusions_of(source);
    if (added.empty()) return;
    rows.push_back(
        {.format = "\nAdditional Infusion Temperatures And Amounts\n", .values = {}, .is_underlined = true});
    for (const auto& [step, infusion] : added)
        rows.push_back({padded_label(step, step_column) + "%8.2f " + infusion_unit(source.open.settings) +
                            " of| %4d Degree Water Added\n",
                        {quarts_to_shown(infusion.amount, source.open.settings),
                         shown_degrees(infusion.temperature, source.open.settings)}});
}

void add_amounts(std::vector<ReportRow>& rows, const ReportSource& source) {
    const auto& settings = source.open.settings;
    const float water = source.open.document.simple_mash.dough_in_water;
    rows.push_back(
        {padded_label(std::string("Grain ") + grain_unit(settings).usual + ":", label_column) + "%6.2f\n",
         {figure_value(recipe_figure::mash_grain, source)}});
    for (const auto& [shown, unit] : shown_waters(water, source))
        rows.push_back({padded_label("Water " + std::string(unit) + ":", label_column) +
                            "%6.2f - Before Additional Infusions\n",
                        {shown}});
    const std::string ratio = is_american(settings.volume_units) ? "Qts Water Per Lbs" : "L Water Per kg";
    const bool has_note = !source.is_competition_form || !infusions_of(source).empty();
    rows.push_back({ratio + " Grain: |%2.2f" + (has_note ? " - Before Additional Infusions\n" : "\n"),
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

std::vector<ShownWater> shown_waters(float quarts, const ReportSource& source) {
    const auto& settings = source.open.settings;
    std::vector<ShownWater> waters{{quarts_to_shown(quarts, settings), mash_water_unit(settings).usual}};
    if (is_pro(settings) && source.open.session == nullptr)
        waters.push_back({to_shown_volume(narrow(quarts / 4.0), settings), volume_unit(settings).usual});
    return waters;
}

std::vector<ReportBlock> simple_schedule(const ReportSource& source) {
    const auto& mash = source.open.document.simple_mash;
    if (mash.mash_kind == MashKind::none) return {};
    const auto& settings = source.open.settings;
    ReportLines lines{{170, 225, 265}, {type_row(mash.mash_kind)}};
    if (const auto* const session = source.open.session; session != nullptr) {
        const bool is_infused = session->infusions.heat_type == SimpleHeat::infusion;
        lines.rows.push_back(
            {std::string("Heat Type: |") + (is_infused ? "Infusion" : "Direct") + "\n\n", {}});
    }
    add_amounts(lines.rows, source);
    add_rests(lines.rows, mash, settings);
    if (const auto* const session = source.open.session; session != nullptr) {
        lines.rows.push_back(gravity_line({.label = "Runnings Stopped At: |", .width = 6, .gap = " SG     |"},
                                          session->runnings_sg, settings));
    }
    add_infusions(lines.rows, source);
    lines.rows.push_back(volume_row(source));
    if (source.is_competition_form)
        lines.rows.push_back(
            {"All temperature measurements are degrees %s.\n", {temperature_unit(settings).full}});
    return {lines};
}

ReportSection mash_section(const ReportSource& source) {
    ReportSection section{"Mash Schedule", {}};
    section.blocks =
        has_complex_schedule(source.open.document) ? complex_schedule(source) : simple_schedule(source);
    return section;
}

} // namespace wortlex
