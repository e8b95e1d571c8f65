// How the number rows read and tell their ranges.
#pragma once

#include "forms/entry_rows.h"

#include <limits>
#include <optional>
#include <string>

namespace wortlex {

inline constexpr float anything = std::numeric_limits<float>::max();
inline constexpr std::int32_t any_whole = std::numeric_limits<std::int32_t>::max();
inline constexpr int number_length = 12; ///< characters that a field is read to

/// "1 to 100"; `everything` is what limits a field that has no limit.
std::string range_in_words(double low, double high, double everything);

/// The limit beyond which `text` lies, be it ever so far; nothing where it lies within, or is no number yet.
std::optional<double> limit_beyond(std::string text, double low, double high);

/// "1044", as brewers say it, with its point, as 1.044: whole numbers from 900 to 1999. Else the text as it
/// is.
std::string with_gravity_point(const std::string& text);

} // namespace wortlex
