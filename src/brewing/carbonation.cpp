#include "brewing/carbonation.h"

#include "base/number.h"

namespace wortlex {

float residual_carbonation(float fahrenheit) {
    const double t = fahrenheit;
    return narrow(3.0378 - 1e-2 * 5.0062 * t + 1e-4 * 2.6555 * t * t);
}

// Not by way of the level above, which is rounded on its own.
float priming_grams(float gallons, float fahrenheit, float level) {
    const double t = fahrenheit;
    const double base = narrow(gallons * 15.195);
    return narrow((level - 3.0378 + 1e-2 * 5.0062 * t - 1e-4 * 2.6555 * t * t) * base);
}

float primed_level(float gallons, float fahrenheit, float grams) {
    if (gallons == 0) return 0;
    return narrow(1e-2 * 6.5811 * (double{grams} / gallons) + residual_carbonation(fahrenheit));
}

float carbonation_pressure(float fahrenheit, float level) {
    const double p = fahrenheit, c = level;
    return narrow(-16.699 - p * 0.0101059 + p * p * 0.00116512 + p * 0.173354 * c + c * 4.24267 -
                  c * c * 0.0684226);
}

} // namespace wortlex
