// Rounding to the stored widths, and the one place where numbers are read and printed.
// Nothing here follows the locale: a figure reads the same on every machine.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace wortlex {

/// Rounds to the 32-bit float in which every figure is stored.
constexpr float narrow(double x) {
    return static_cast<float>(x);
}

/// Cuts toward zero to a whole number. What does not fit, not-a-number included, gives the
/// smallest 32-bit integer.
constexpr std::int32_t truncate(double x) {
    constexpr double below = -2147483649.0, above = 2147483648.0;
    return x > below && x < above ? static_cast<std::int32_t>(x) : std::numeric_limits<std::int32_t>::min();
}

/// `value` with exactly `decimals` digits behind the point.
std::string fixed(double value, int decimals);

/// `value` in at most `digits` significant digits, with an exponent where that is shorter.
std::string significant(double value, int digits);

/// The number that the whole of `text` spells, blanks around it allowed; nothing otherwise.
std::optional<double> parse_number(std::string_view text);

/// Likewise a whole number.
std::optional<std::int32_t> parse_whole(std::string_view text);

} // namespace wortlex
