#include "mash/strike_water_form.h"

#include "brewing/mash_recalculation.h"
#include "brewing/mash_water.h"
#include "mash/session_mash_rows.h"
#include "mash/strike_calculator_printout.h"
#include "measures/degrees.h"
#include "measures/unit_words.h"
#include "measures/units.h"

#include <algorithm>
#include <utility>

namespace wortlex {
namespace {

constexpr std::int32_t least_degrees = 1; // F

float quarts_per_pound(const StrikeWater& water) {
    return shown_ratio(water.quarts, water.grain, Units::american);
}

std::string total_label(const char* what, const UnitWords& unit) {
    return std::string("Total ") + what + " " + unit.capital;
}

void strike_amount_rows(Rows& rows, const StrikeWater& water, const Settings& settings) {
    rows.shown_number(
            "grain", [&water, &settings] { return grain_to_shown(water.grain, settings); }, "%0.2f")
        .label(total_label("Grain", grain_unit(settings)));
    rows.shown_number(
            "water", [&water, &settings] { return quarts_to_shown(water.quarts, settings); }, "%0.2f")
        .label(total_label("Water", mash_water_unit(settings)));
}

void degrees_row(Rows& rows, const char* key, const char* label, std::int32_t& degrees,
                 TemperatureUnits units) {
    whole_degrees_row(rows, key, degrees, units).label(label).changed([&degrees] {
        degrees = std::max(degrees, least_degrees);
    });
}

} // namespace

std::int32_t strike_temperature(const StrikeWater& water) {
    return StrikeTemperature(water.wanted, water.grain_temperature, quarts_per_pound(water),
                             water.thermal_mass);
}

void strike_water_form(Form& form, StrikeWater& water, const Settings& settings, std::function<void()> print,
                       std::function<void()> help) {
    const auto units = settings.temperature_units;
    auto& rows = form.rows();
    strike_amount_rows(rows, water, settings);
    degrees_row(rows, "wanted", "&Desired Strike Temp", water.wanted, units);
    degrees_row(rows, "grain_temperature", "&Grain Temp", water.grain_temperature, units);
    rows.shown_number(
            "thermal_mass", [&water] { return water.thermal_mass; }, "%5.2f")
        .label("Mash Tun Thermal Mass");
    rows.shown("strike",
               [&water, units] { return std::to_string(shown_degrees(strike_temperature(water), units)); })
        .figure()
        .label("Initial Mash Water Temperature Should Be")
        .unit(std::string("Degrees ") + temperature_unit(settings).usual);
    rows.button("print", "&Print", std::move(print));
    rows.button("help", "&Help", std::move(help));
}

PrintRequest strike_water_printout(const StrikeWater& water, const Settings& settings) {
    StrikeCalculator calculator;
    calculator.thermal_mass = water.thermal_mass;
    calculator.grain = of_pounds(water.grain);
    calculator.water = of_quarts(water.quarts);
    calculator.wanted = of_fahrenheit(static_cast<float>(water.wanted));
    calculator.grain_at = of_fahrenheit(static_cast<float>(water.grain_temperature));
    calculator.quarts_per_pound = quarts_per_pound(water);
    calculator.litres_per_kilogram = shown_ratio(water.quarts, water.grain, Units::metric);
    calculator.strike = of_fahrenheit(static_cast<float>(strike_temperature(water)));
    calculator.mash_gallons = TotalMashVolume(water.grain, water.quarts, settings.grain_water_volume);
    return strike_calculator_printout(calculator, settings, session_strike_title);
}

} // namespace wortlex
