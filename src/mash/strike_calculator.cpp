#include "mash/strike_calculator.h"

#include "base/number.h"
#include "brewing/mash_water.h"
#include "measures/units.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr double ounces_per_pound = 16.0;
constexpr float least_ratio = 0.05F;
constexpr float brewery_amount = 1200; // pounds and quarts

// Cut off to whole degrees, unlike what the tun adds. Without water it is the wanted temperature.
float strike_of(const StrikeCalculator& calculator) {
    const auto& wanted = calculator.wanted.fahrenheit;
    if (!(calculator.quarts_per_pound > 0)) return wanted;
    const auto strike =
        strike_without_tun(wanted, calculator.grain_at.fahrenheit, calculator.quarts_per_pound);
    return narrow(strike + 2 * (calculator.thermal_mass / 10.0 * strike));
}

} // namespace

TwinWeight of_pounds(float pounds) {
    const float weight = std::max(pounds, 0.0F);
    return {weight, narrow(weight * grams_per_pound / 1000.0)};
}

// By way of the ounce, so not exactly the way back.
TwinWeight of_kilograms(float kilograms) {
    const float weight = std::max(kilograms, 0.0F);
    return {narrow(weight * 1000.0 / grams_per_ounce / ounces_per_pound), weight};
}

TwinVolume of_quarts(float quarts) {
    const float volume = std::max(quarts, 0.0F);
    return {volume, narrow(volume / 4.0 * litres_per_gallon)};
}

TwinVolume of_litres(float litres) {
    const float volume = std::max(litres, 0.0F);
    return {narrow(volume * fluid_ounces_per_litre / 32.0), volume};
}

StrikeCalculator new_strike_calculator(const Settings& settings) {
    const bool is_brewery = is_pro(settings);
    StrikeCalculator calculator;
    calculator.thermal_mass = settings.tun_thermal_mass;
    calculator.grain = of_pounds(is_brewery ? brewery_amount : 10);
    calculator.water = of_quarts(is_brewery ? brewery_amount : 12);
    calculator.wanted = of_fahrenheit(155);
    calculator.grain_at = of_fahrenheit(settings.grain_temperature);
    return calculator;
}

void open_strike_calculator(StrikeCalculator& calculator, const Settings& settings) {
    calculator.grain_water_volume = settings.grain_water_volume;
    work_out_strike(calculator);
    calculator.strike.celsius = calculator.wanted.celsius;
}

void work_out_strike(StrikeCalculator& calculator) {
    const auto& [pounds, kilograms] = calculator.grain;
    const auto& [quarts, litres] = calculator.water;
    calculator.quarts_per_pound = pounds > 0 ? narrow(double{quarts} / pounds) : 0;
    calculator.litres_per_kilogram = kilograms > 0 ? narrow(double{litres} / kilograms) : 0;
    calculator.strike = of_fahrenheit(strike_of(calculator));
    calculator.mash_gallons = TotalMashVolume(pounds, quarts, calculator.grain_water_volume);
}

void set_quarts_per_pound(StrikeCalculator& calculator, float ratio) {
    calculator.water = of_quarts(narrow(double{calculator.grain.pounds} * std::max(ratio, least_ratio)));
    work_out_strike(calculator);
}

void set_litres_per_kilogram(StrikeCalculator& calculator, float ratio) {
    calculator.water = of_litres(narrow(double{calculator.grain.kilograms} * std::max(ratio, least_ratio)));
    work_out_strike(calculator);
}

} // namespace wortlex
