// Between the units that records hold (US gallons, pounds, ounces, quarts, degrees F, SRM) and those that
// the user has chosen. Each pair of directions has its own constants, and some are deliberately not
// exact inverses.
#pragma once

#include "settings/settings.h"

namespace wortlex {

inline constexpr double litres_per_gallon = 3.7853;
inline constexpr double gallons_per_litre = 0.264178125;
inline constexpr double gallons_per_barrel = 31.0;
inline constexpr double grams_per_pound = 453.6;
inline constexpr double grams_per_ounce = 28.35;
inline constexpr double fluid_ounces_per_litre = 33.8148; // over 32 gives quarts
inline constexpr double kilopascals_per_psi = 6.8948;
inline constexpr double absorption_per_kilogram = 8.41; // litres, of a gallon a pound

/// Gallons as gallons, barrels, litres or hectolitres.
float to_shown_volume(float gallons, Units units, SystemMode mode);
float from_shown_volume(float shown, Units units, SystemMode mode);
float to_shown_volume(float gallons, const Settings& settings);
float from_shown_volume(float shown, const Settings& settings);

/// Quarts as quarts, gallons (pro) or litres, which stay litres in pro mode.
float quarts_to_shown(float quarts, Units units, SystemMode mode);
float shown_to_quarts(float shown, Units units, SystemMode mode);
float quarts_to_shown(float quarts, const Settings& settings);
float shown_to_quarts(float shown, const Settings& settings);

/// Ounces of hops as ounces, pounds (pro), grams or kilograms (pro).
float hop_to_shown(float ounces, const Settings& settings);
float shown_to_hop(float shown, const Settings& settings);
/// The same for priming and dosing amounts, which follow the units of volume.
float small_to_shown(float ounces, const Settings& settings);
float shown_to_small(float shown, const Settings& settings);

/// Pounds of grain as pounds or kilograms.
float grain_to_shown(float pounds, const Settings& settings);
float shown_to_grain(float shown, const Settings& settings);

/// psi as psi or kPa.
float pressure_to_shown(float psi, const Settings& settings);
float shown_to_pressure(float shown, const Settings& settings);

/// Degrees F as F or C for display without decimals: Celsius carries a rounding half, and what would
/// show below freezing shows 0.
float to_shown_temperature(float fahrenheit, const Settings& settings);
/// The plain conversions of entry fields.
float celsius_from_fahrenheit(float fahrenheit);
float fahrenheit_from_celsius(float celsius);

/// A fraction as the nearest whole percent.
std::int32_t whole_percent(float fraction);

/// SRM as SRM or one of the two EBC scales, of which the traditional one never shows below 0.
float to_shown_colour(float srm, const Settings& settings);
float from_shown_colour(float shown, const Settings& settings);

} // namespace wortlex
