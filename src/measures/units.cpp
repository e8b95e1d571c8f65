#include "measures/units.h"

#include "base/number.h"
#include "measures/degrees.h"

#include <algorithm>
#include <cmath>

namespace wortlex {
namespace {

float ounces_to_shown(float ounces, Units units, SystemMode mode) {
    const bool pro = mode == SystemMode::pro_brewer;
    if (is_american(units)) return pro ? narrow(ounces / 16.0) : ounces;
    return narrow(pro ? ounces * grams_per_ounce / 1000 : ounces * grams_per_ounce);
}

float shown_to_ounces(float shown, Units units, SystemMode mode) {
    const bool pro = mode == SystemMode::pro_brewer;
    if (is_american(units)) return pro ? narrow(shown * 16.0) : shown;
    return narrow(pro ? shown / grams_per_ounce * 1000 : shown / grams_per_ounce);
}

} // namespace

float to_shown_volume(float gallons, Units units, SystemMode mode) {
    const bool pro = mode == SystemMode::pro_brewer;
    if (is_american(units)) return pro ? narrow(gallons / gallons_per_barrel) : gallons;
    return narrow(pro ? gallons * litres_per_gallon / 100 : gallons * litres_per_gallon);
}

float from_shown_volume(float shown, Units units, SystemMode mode) {
    const bool pro = mode == SystemMode::pro_brewer;
    if (is_american(units)) return pro ? narrow(shown * gallons_per_barrel) : shown;
    return narrow(pro ? shown * 100.0 * gallons_per_litre : shown * gallons_per_litre);
}

float to_shown_volume(float gallons, const Settings& settings) {
    return to_shown_volume(gallons, settings.volume_units, settings.system_mode);
}

float from_shown_volume(float shown, const Settings& settings) {
    return from_shown_volume(shown, settings.volume_units, settings.system_mode);
}

float quarts_to_shown(float quarts, Units units, SystemMode mode) {
    if (units == Units::metric) return narrow(quarts / 4.0 * litres_per_gallon);
    return mode == SystemMode::pro_brewer ? narrow(quarts / 4.0) : quarts;
}

float shown_to_quarts(float shown, Units units, SystemMode mode) {
    if (units == Units::metric) return narrow(shown * fluid_ounces_per_litre / 32.0);
    return mode == SystemMode::pro_brewer ? narrow(shown * 4.0) : shown;
}

float quarts_to_shown(float quarts, const Settings& settings) {
    return quarts_to_shown(quarts, settings.volume_units, settings.system_mode);
}

float shown_to_quarts(float shown, const Settings& settings) {
    return shown_to_quarts(shown, settings.volume_units, settings.system_mode);
}

float hop_to_shown(float ounces, const Settings& settings) {
    return ounces_to_shown(ounces, settings.hop_weight_units, settings.system_mode);
}

float shown_to_hop(float shown, const Settings& settings) {
    return shown_to_ounces(shown, settings.hop_weight_units, settings.system_mode);
}

float small_to_shown(float ounces, const Settings& settings) {
    return ounces_to_shown(ounces, settings.volume_units, settings.system_mode);
}

float shown_to_small(float shown, const Settings& settings) {
    return shown_to_ounces(shown, settings.volume_units, settings.system_mode);
}

float grain_to_shown(float pounds, const Settings& settings) {
    return is_american(settings.weight_units) ? pounds : narrow(pounds * grams_per_pound / 1000);
}

float shown_to_grain(float shown, const Settings& settings) {
    return is_american(settings.weight_units) ? shown : narrow(shown * 1000.0 / grams_per_pound);
}

float pressure_to_shown(float psi, const Settings& settings) {
    return is_american(settings.pressure_units) ? psi : narrow(psi * kilopascals_per_psi);
}

float shown_to_pressure(float shown, const Settings& settings) {
    return is_american(settings.pressure_units) ? shown : narrow(shown / kilopascals_per_psi);
}

float to_shown_temperature(float fahrenheit, const Settings& settings) {
    if (settings.temperature_units == TemperatureUnits::fahrenheit) return fahrenheit;
    const double rounded = celsius(fahrenheit) + 0.5;
    return truncate(rounded) < 0 ? 0.0F : narrow(rounded);
}

float celsius_from_fahrenheit(float fahrenheit) {
    return narrow(celsius(fahrenheit));
}

float fahrenheit_from_celsius(float celsius) {
    return narrow(fahrenheit(celsius));
}

std::int32_t whole_percent(float fraction) {
    return truncate(std::floor(fraction * 100.0 + 0.5));
}

float to_shown_colour(float srm, const Settings& settings) {
    switch (settings.color_units) {
    case ColorUnits::ebc_new:
        return narrow(srm * 1.97);
    case ColorUnits::ebc_traditional:
        return narrow(std::max(srm * 2.65 - 1.2, 0.0));
    default:
        return srm;
    }
}

float from_shown_colour(float shown, const Settings& settings) {
    switch (settings.color_units) {
    case ColorUnits::ebc_new:
        return narrow(shown / 1.97);
    case ColorUnits::ebc_traditional:
        return narrow(std::max((shown + 1.2) / 2.65, 0.0));
    default:
        return shown;
    }
}

} // namespace wortlex
