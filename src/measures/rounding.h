// The rounding of the whole program: every helper cuts off after a small nudge, none rounds to
// nearest. The nudges are part of the figures; ordinary rounding differs in the last digit shown.
#pragma once

#include "base/number.h"

#include <array>
#include <cmath>

namespace wortlex {

/// `x` cut to `digits` decimals, 1 to 6, after a nudge of 0.12 units of the last one. Any other number
/// of digits returns `x` unchanged, and what is no number stays none.
inline float trunc_to_precision(float x, int digits) {
    constexpr std::array nudges = {0.012, 0.0012, 0.00012, 0.000012, 0.0000012, 0.00000012};
    constexpr std::array scales = {10.0, 100.0, 1000.0, 10000.0, 100000.0, 1000000.0};
    if (digits < 1 || digits > 6 || !std::isfinite(x)) return x;
    const auto place = static_cast<std::size_t>(digits - 1);
    return narrow(truncate((x + nudges[place]) * scales[place]) / scales[place]);
}

/// `x` cut to five decimals after a nudge of 0.9 units of the last one; not stored back to 32 bits. No number
/// stays none, likewise.
inline double trunc_5(float x) {
    return std::isfinite(x) ? truncate((x + 0.000009) * 100000) / 100000.0 : double{x};
}

/// `x` cut to two decimals, however large; the nudge is larger from 1.0 on. No number stays none.
inline float two_decimals(float x) {
    return narrow(std::trunc((x + (x >= 1.0F ? 0.0019 : 0.0009)) * 100) / 100.0);
}

/// The multiple of `step` that is nearest to `x`: what is proposed to a user is a round figure.
inline float to_nearest(double x, double step) {
    return narrow(std::floor(x / step + 0.5) * step);
}

/// Whether two gravities (SG) count as the same when an ingredient is matched against the database.
inline bool gravity_close(float a, float b) {
    const auto tenths = [](float sg) { return truncate((sg - 1.0) * 1000 * 100 / 10 + 0.5); };
    return std::abs(static_cast<double>(tenths(a)) - tenths(b)) < 10;
}

} // namespace wortlex
