// The units of the settings in the words of the reports, and places for figures in the chosen precision.
#pragma once

#include "records/documents/lines.h"
#include "settings/settings.h"

#include <string>

namespace wortlex {

/// "Gal", "bbl", "L" or "hL".
std::string_view volume_word(const Settings& settings);
/// The unit of mash water: "Qts", "Gal" or "L".
std::string_view small_volume_word(const Settings& settings);
/// "Lbs" or "kg".
std::string_view grain_word(const Settings& settings);
/// As wide as each other: "lbs." or "kg. "; of hops also "oz. " and "g.  ".
std::string_view grain_column_word(const Settings& settings);
std::string_view hop_column_word(const Settings& settings);
/// "SRM" or "EBC"; "IBU", or "HBU" or "MBU".
std::string_view colour_word(const Settings& settings);
std::string_view bitterness_word(bool show_ibu, const Settings& settings);
/// "Fine Grind Dry Basis" and its like.
std::string_view yield_word(YieldType type);
/// 'F' or 'C'.
std::string temperature_word(const Settings& settings);

/// The cell of a label, filled up.
std::string padded_label(std::string_view label, std::size_t width);
/// That of "Batch Size (Gal):" for "Batch Size" and "Gal".
std::string unit_label(std::string_view text, std::string_view unit, std::size_t width);

/// The place of a gravity, three to five decimals in the same width, and of Plato, one to three.
std::string sg_place(int width, const Settings& settings);
std::string plato_place(int width, const Settings& settings);
/// The same, with blanks behind it: `width` and `gap` are those of the fewest decimals, and each one more
/// takes a blank of the gap, so that point and next column stay where they are.
std::string sg_column(int width, int gap, const Settings& settings);
std::string plato_column(int width, int gap, const Settings& settings);

/// Whole degrees as shown, cut off.
int shown_degrees(std::int32_t fahrenheit, const Settings& settings);

/// A text of a record for one line of a report, UTF-8 without control characters.
std::string line_text(std::string_view windows1252);

template <std::size_t N>
std::string line_text(const Text<N>& text) {
    return line_text(text.view());
}

} // namespace wortlex
