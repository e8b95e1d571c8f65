#include "measures/units.h"
#include "page/text_sink.h"
#include "reports/mash_rows.h"
#include "reports/row_parts.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::size_t step_name_width = 21;
constexpr std::size_t heat_width = 9;
constexpr std::size_t step_label_column = 24;
constexpr double shown_thickness = 0.4784; // a thickness in litres per kilogram is quarts per pound over this

void add_waters(std::vector<ReportRow>& rows, float quarts, std::string_view note,
                const ReportSource& source) {
    for (const auto& [shown, unit] : shown_waters(quarts, source)) {
        const auto label = "Total Water " + std::string(unit) + ":";
        rows.push_back(
            {padded_label(label, step_label_column) + "%8.2f - %s\n", {shown, note}, label + "|%6.2f|- %s"});
    }
}

ReportLines opening(const ReportSource& source) {
    const auto& settings = source.open.settings;
    const auto& mash = source.open.document.mash;
    const auto grain_label = std::string("Total Grain ") + grain_unit(settings).usual + ":";
    ReportLines lines{{170, 255}, {{"Mash Name: |%s\n\n", {line_text(mash.mash_name)}}}};
    lines.rows.push_back({padded_label(grain_label, step_label_column) + "%8.2f\n",
                          {figure_value(recipe_figure::mash_grain, source)}});
    add_waters(lines.rows, source.open.document.simple_mash.dough_in_water, "Before Additional Infusions",
               source);
    lines.rows.push_back(
        {"\nGrain Temp:             |%8.2f " + std::string(temperature_unit(settings).usual) + "\n",
         {shown_degrees(mash.grain_temperature, settings)}});
    lines.rows.push_back(
        {"Tun Thermal Mass:       |%8.2f\n\n\n", {mash.tun_thermal_mass}, "Tun Thermal Mass :|%6.2f"});
    return lines;
}

std::vector<ReportColumn> step_columns() {
    constexpr auto right = HtmlAlign::right;
    return {{"\nStep Name", 0, 0, 140},
            {"Step\nTime", 21, 175, 45, right, 175, 202},
            {"Rest\nTime", 28, 225, 45, right, 225, 252},
            {"Start\nTemp", 35, 275, 45, right, 275, 306},
            {"Stop\nTemp", 43, 325, 45, right, 325, 356},
            {"Heat\nType", 49, 375, 55},
            {"Infuse\nTemp", 58, 435, 50, right, 435, 468},
            {"Infuse\nAmount", 67, 485, 55, right, 490, 532},
            {"Infuse\nRatio", 75, 560, 70, right, 550, 583}};
}

// A session keeps to the thickness as it is stored.
double decoction_thickness(const MashStep& step, const ReportSource& source) {
    const bool is_stored = source.open.session != nullptr || is_american(source.open.settings.volume_units);
    return is_stored ? step.ratio : step.ratio / shown_thickness;
}

void add_heat(ReportRow& row, const MashStep& step, const ReportSource& source) {
    const auto& settings = source.open.settings;
    const float amount = quarts_to_shown(step.amount, settings);
    const int degrees = shown_degrees(step.infuse_temperature, settings);
    const auto add = [&row](std::string_view format, std::string_view print,
                            std::vector<ReportValue> values) {
        row.format += format;
        row.print_format += print;
        row.values.insert(row.values.end(), values.begin(), values.end());
    };
    if (step.heat_type == StepHeat::direct) {
        add("%s|%s     |%s   |%s\n", "%s|---|-----|----", {{"Direct", heat_width}, "---", "-------", "----"});
    } else if (step.heat_type == StepHeat::decoction) {
        add("%s|%3d     |%7.2f   |%4.2f (Decoc Thickness)\n", "%s|%3d|%5.2f|%4.2f (Decoc Thickness)",
            {{"Decoc", heat_width}, degrees, std::max(amount, 0.0F), decoction_thickness(step, source)});
    } else {
        add("%s|%3d     |%7.2f   |%4.2f\n", "%s|%3d|%5.2f|%4.2f",
            {{"Infuse", heat_width}, degrees, amount, step.ratio});
    }
}

ReportRow step_row(const MashStep& step, const ReportSource& source) {
    const auto& settings = source.open.settings;
    ReportRow row{"%s|%3d    |%3d    |%3d     |%3d   |",
                  {{line_text(step.name), step_name_width},
                   step.step_minutes,
                   step.rest_minutes,
                   shown_degrees(step.start_temperature, settings),
                   shown_degrees(step.stop_temperature, settings)},
                  "%s|%3d|%3d|%3d|%3d|"};
    add_heat(row, step, source);
    return row;
}

// In hectolitres print has always left a blank out.
ReportRow mash_volume_row(const ReportSource& source) {
    const auto& settings = source.open.settings;
    const auto& volume = volume_unit(settings);
    const auto label = std::string("Total Mash Volume ") + volume.usual + ":";
    const bool is_hectolitres = &volume == &words_of(Unit::hectolitres);
    return {padded_label(label, step_label_column) + "%8.2f - After Additional Infusions\n\n\n",
            {figure_value(recipe_figure::mash_volume, source)},
            label + "|%6.2f|-" + (is_hectolitres ? "" : " ") + "After Additional Infusions"};
}

void add_notes(std::vector<ReportRow>& rows, const Settings& settings) {
    const auto* const ratios = is_american(settings.volume_units) ? "Quarts/Lbs" : "Liters/Kilograms";
    rows.push_back({"All temperature measurements are degrees %s.\n", {temperature_unit(settings).full}});
    rows.push_back({"All infusion amounts are in %s.\n", {mash_water_unit(settings).full}});
    rows.push_back({"All infusion ratios are %s.\n", {ratios}});
    for (const auto* note :
         {"Step Time for Decoction Steps represent how far back in time the Decoction was pulled.\n",
          "Infusion amounts for Decoction Steps represent the amount pulled for the Decoction.\n",
          "Infusion ratios for Decoction Steps represent the Decoction Thickness.\n\n"})
        rows.push_back({note, {}});
}

} // namespace

std::vector<ReportBlock> complex_schedule(const ReportSource& source) {
    const auto& settings = source.open.settings;
    ReportTable steps{step_columns(), {}};
    for (const auto& step : source.open.document.mash.used_steps())
        steps.rows.push_back(step_row(step, source));
    ReportLines totals{{190, 255}, {}};
    add_waters(totals.rows, source.open.figures.mash.quarts, "After Additional Infusions", source);
    totals.rows.front().format.insert(0, "\n\n");
    totals.rows.push_back(mash_volume_row(source));
    add_notes(totals.rows, settings);
    std::vector<ReportBlock> blocks;
    blocks.emplace_back(opening(source));
    blocks.emplace_back(std::move(steps));
    blocks.emplace_back(std::move(totals));
    return blocks;
}

} // namespace wortlex
