#include "water/water_totals.h"

#include "base/number.h"
#include "measures/unit_words.h"
#include "measures/units.h"
#include "water/salt_words.h"

#include <utility>

namespace wortlex {
namespace {

constexpr double quarts_per_gallon = 128.0 / 32.0;

// A water's volume in gallons and in quarts, which always belong together.
struct WaterVolume {
    const char* key;
    const char* caption;
    const char* label;
    float WaterAnalysis::*gallons;
    float WaterAnalysis::*quarts;
};

constexpr std::array volumes = {WaterVolume{"mash", "Mash Water", "&Mash Water", &WaterAnalysis::mash_gallons,
                                            &WaterAnalysis::mash_quarts},
                                WaterVolume{"sparge", "Sparge Water", "&Sparge Water",
                                            &WaterAnalysis::sparge_gallons, &WaterAnalysis::sparge_quarts}};

// The words of the two fields.
struct VolumeUnits {
    Unit large;
    Unit small;
};

VolumeUnits units_of(const Settings& settings) {
    const bool american = is_american(settings.volume_units);
    if (is_pro(settings))
        return american ? VolumeUnits{Unit::barrels, Unit::gallons}
                        : VolumeUnits{Unit::hectolitres, Unit::litres};
    return {american ? Unit::gallons : Unit::litres, Unit::quarts};
}

// A kitchen's small measure is the quart, whatever the large one.
float small_to_show(float quarts, const Settings& settings) {
    return is_pro(settings) ? quarts_to_shown(quarts, settings) : quarts;
}

float small_from_shown(float shown, const Settings& settings) {
    if (!is_pro(settings)) return shown;
    if (is_american(settings.volume_units)) return narrow(shown * quarts_per_gallon);
    return narrow(shown * gallons_per_litre * quarts_per_gallon);
}

Live<std::string> unit_words(const Settings& settings, Unit VolumeUnits::*unit) {
    return [&settings, unit] { return std::string(words_of(units_of(settings).*unit).full); };
}

void as_water(NumberRow& row, const Settings& settings, Unit VolumeUnits::*unit) {
    row.range(0, most_water).step(0.25F).unit(unit_words(settings, unit));
}

std::string small_name(const WaterVolume& volume) {
    return volume.caption + std::string(" in the small unit");
}

void shown_volume_rows(Rows& rows, const WaterAnalysis& analysis, const WaterVolume& volume,
                       const Settings& settings) {
    const std::string key = volume.key;
    rows.shown_number(
            key + "_large", [&] { return to_shown_volume(analysis.*volume.gallons, settings); }, "%0.2f")
        .label(volume.label)
        .unit(unit_words(settings, &VolumeUnits::large));
    rows.shown_number(
            key + "_small", [&] { return small_to_show(analysis.*volume.quarts, settings); }, "%0.2f")
        .label("or")
        .named(small_name(volume))
        .unit(unit_words(settings, &VolumeUnits::small));
}

void volume_rows(Rows& rows, WaterAnalysis& analysis, const WaterVolume& volume, const Settings& settings) {
    auto& gallons = analysis.*volume.gallons;
    auto& quarts = analysis.*volume.quarts;
    const std::string key = volume.key;
    as_water(rows.number(key + "_large", {[&gallons] { return gallons; },
                                          [&gallons, &quarts](float value) {
                                              gallons = value;
                                              quarts = narrow(value * quarts_per_gallon);
                                          }})
                 .label(volume.label)
                 .shown_as([&settings](float value) { return to_shown_volume(value, settings); },
                           [&settings](float shown) { return from_shown_volume(shown, settings); }),
             settings, &VolumeUnits::large);
    as_water(rows.number(key + "_small", {[&quarts] { return quarts; },
                                          [&gallons, &quarts](float value) {
                                              quarts = value;
                                              gallons = narrow(value / quarts_per_gallon);
                                          }})
                 .label("or")
                 .named(small_name(volume))
                 .shown_as([&settings](float value) { return small_to_show(value, settings); },
                           [&settings](float shown) { return small_from_shown(shown, settings); }),
             settings, &VolumeUnits::small);
}

void quantity_lines(Rows& rows, const WaterAnalysis& analysis) {
    auto& grid = rows.grid("quantities", {volumes[0].caption, volumes[1].caption});
    for (std::size_t i = 0; i < salt_effects.size(); ++i) {
        auto& line = grid.line(salt_words[i].totals_label);
        for (const auto& volume : volumes)
            line.shown_number(
                std::string(salt_words[i].key) + '_' + volume.key,
                [&analysis, &volume, i] {
                    return salt_quantity(analysis.rate(salt_effects[i].salt), analysis.*volume.gallons,
                                         analysis.unit);
                },
                "%4.2f");
    }
}

std::string adjusted(const char* what, const WaterAnalysis& analysis, const WaterVolume& volume,
                     const Settings& settings) {
    const auto [large, small] = units_of(settings);
    return std::string("Adjust ") + what +
           formatted(" - %0.2f ", to_shown_volume(analysis.*volume.gallons, settings)) +
           words_of(large).full + formatted(" (%0.2f ", small_to_show(analysis.*volume.quarts, settings)) +
           words_of(small).full + ") with:";
}

} // namespace

void water_totals_form(Form& form, WaterAnalysis& analysis, const Settings& settings,
                       WaterTotalsActions actions, WaterSide side) {
    auto& water = form.group();
    for (const auto& volume : volumes) {
        if (side == WaterSide::session)
            shown_volume_rows(water, analysis, volume, settings);
        else
            volume_rows(water, analysis, volume, settings);
    }
    form.group("Amounts Are In:").choice("unit", analysis.unit, {"&Ounces", "&Grams"});
    form.next_column();
    quantity_lines(form.group("Quantities You Need"), analysis);
    auto& buttons = form.group();
    buttons.button("print", "&Print", std::move(actions.print));
    buttons.button("help", "&Help", std::move(actions.help));
}

std::array<std::string, 2> water_adjustment_heads(const WaterAnalysis& analysis, const Settings& settings) {
    return {adjusted(volumes[0].caption, analysis, volumes[0], settings),
            adjusted(volumes[1].caption, analysis, volumes[1], settings)};
}

void print_water_adjustment(PageContext& page, const WaterAnalysis& analysis, const Settings& settings) {
    const char* const unit = analysis.unit == SaltUnit::grams ? "\tGrams of " : "\tOunces of ";
    for (const auto& volume : volumes) {
        const bool is_mash = &volume == volumes.data();
        if (!is_mash && !page.KeepTogether(5 + static_cast<int>(salt_effects.size()))) page.NewLines(2);
        page.Line(adjusted(volume.caption, analysis, volume, settings));
        page.NewLines(2);
        for (std::size_t i = 0; i < salt_effects.size(); ++i) {
            const float quantity =
                salt_quantity(analysis.rate(salt_effects[i].salt), analysis.*volume.gallons, analysis.unit);
            page.TabbedLine({100, 310},
                            formatted(is_mash ? "%0.2f" : "%6.2f", quantity) + unit + salt_words[i].quantity);
        }
    }
}

PrintRequest water_adjustment_printout(const WaterAnalysis& analysis, const Settings& settings) {
    return {"Wortlex Water Adjustment Detail", settings.printer_scale,
            [analysis, settings](PageContext& page) {
                page.SetHeader(0, "Wortlex Water Adjustment Detail");
                page.NewLines(1);
                print_water_adjustment(page, analysis, settings);
            }};
}

} // namespace wortlex
