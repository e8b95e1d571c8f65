#include "measures/degrees.h"

#include "base/number.h"

#include <algorithm>

namespace wortlex {

std::int32_t shown_degrees(std::int32_t fahrenheit, TemperatureUnits units) {
    if (units == TemperatureUnits::fahrenheit) return fahrenheit;
    return std::max(truncate((fahrenheit - 32.0) / 1.8 + 0.5), 0);
}

std::int32_t stored_degrees(std::int32_t shown, TemperatureUnits units) {
    if (shown < 1) return 0;
    if (units == TemperatureUnits::fahrenheit) return shown;
    return truncate(shown * 1.8 + 32.0 + 0.01);
}

} // namespace wortlex
