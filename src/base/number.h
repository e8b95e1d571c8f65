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

/// What is shown for a figure that is no number, infinity included.
inline constexpr std::string_view no_number = "--";

/// `value` with exactly `decimals` digits behind the point, 40 at the most; `no_number` where it is none.
std::string fixed(double value, int decimals);

/// `value` in at most `digits` significant digits, with an exponent where that is shorter.
std::string significant(double value, int digits);

/// The finite number that the whole of `text` spells, blanks around it allowed; nothing otherwise.
std::optional<double> parse_number(std::string_view text);

/// The number that `text` begins with, blanks before it allowed; 0 where it begins with none. What is too
/// large for a double is infinite.
double leading_number(std::string_view text);

/// Prints by a pattern with one place for the number: "%d" or "%f" with a width, leading zeros ("%06.1f")
/// and, for "%f", decimals; "%%" is a percent sign. "%d" cuts off what is behind the point; what is no number
/// shows `no_number` in the width. The rest of the pattern stands as it is.
std::string formatted(std::string_view pattern, double value);

/// Likewise a whole number.
std::optional<std::int32_t> parse_whole(std::string_view text);

} // namespace wortlex
