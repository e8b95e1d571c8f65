#include "brewing/hydrometer.h"

#include "base/number.h"

namespace wortlex {

float hydrometer_error(float fahrenheit) {
    const double t = fahrenheit;
    return narrow(1.313454 - 0.132674 * t + 0.002067793 * t * t - 2.627634e-6 * t * t * t);
}

float corrected_gravity(float sg, float fahrenheit, float calibration_error) {
    return narrow((double{hydrometer_error(fahrenheit)} - calibration_error) / 1000 + sg);
}

} // namespace wortlex
