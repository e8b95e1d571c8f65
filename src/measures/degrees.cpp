#include "measures/degrees.h"

#include "base/number.h"

#include <algorithm>

namespace wortlex {

std::int32_t shown_degrees(std::int32_t fahrenheit, TemperatureUnits units) {
    if (units == TemperatureUnits::fahrenheit) return fahrenheit;
    return std::max(truncate(celsius(fahrenheit) + 0.5), 0);
}

std::int32_t stored_degrees(std::int32_t shown, TemperatureUnits units) {
    if (shown < 1) return 0;
    if (units == TemperatureUnits::fahrenheit) return shown;
    return truncate(fahrenheit(shown) + 0.01);
}

} // namespace wortlex
