// Degrees, and the whole ones of a schedule as the fields of its windows show and take them.
#pragma once

#include "settings/codes.h"

#include <cstdint>

namespace wortlex {

constexpr double celsius(double fahrenheit) {
    return (fahrenheit - 32.0) / 1.8;
}
constexpr double fahrenheit(double celsius) {
    return celsius * 1.8 + 32.0;
}

/// Degrees F as F, or as C rounded to the nearest; what is below freezing shows 0.
std::int32_t shown_degrees(std::int32_t fahrenheit, TemperatureUnits units);

/// Back to degrees F. Below 1 as shown it is 0: no temperature at all.
std::int32_t stored_degrees(std::int32_t shown, TemperatureUnits units);

} // namespace wortlex
