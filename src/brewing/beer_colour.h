// From the grain bill to the colour of the beer, and from that to the colour on the screen. All is SRM
// (degrees Lovibond of the malts); other units are a matter of display. The formulae are those of Morey
// (1995, a power of the malt colour units), and of Mosher and Daniels, each a straight line.
#pragma once

#include "records/documents/lines.h"
#include "settings/settings.h"

#include <string>

namespace wortlex {

struct BeerColour {
    float mcu = 0;              ///< malt colour units: Lovibond x pounds / gallons
    float average_lovibond = 0; ///< weighted by amount; 0 without malt
    float srm = 0;
};

/// By the formula of Morey, Mosher or Daniels; every line counts, sugars and extracts too. No malt, or an
/// unknown formula, gives 0. A batch size of 0 gives what the division gives.
BeerColour beer_colour(std::span<const MaltUse> malts, float batch_size, ColorFormula formula);

struct ColorRow {
    float srm = 0;
    std::int32_t red = 0; ///< 0 to 255, as are the others
    std::int32_t filler_8 = 0;
    std::int32_t green = 0;
    std::uint8_t filler_16 = 255;
    std::int32_t blue = 0;
    float filler_21 = 0;
    std::int32_t alpha = 255;
    std::int32_t filler_29 = 0;

    bool operator==(const ColorRow&) const = default;
};

inline constexpr std::size_t color_rows = 400;
inline constexpr double top_srm = 40.0;

/// The colours of SRM 0.1, 0.2 ... 40.0 and who made them.
struct ColorTable {
    Text<255> author;
    Text<255> version;
    Text<255> third_text; ///< kept, never shown
    std::array<ColorRow, color_rows> rows;

    bool operator==(const ColorTable&) const = default;
};

/// The table that the program carries: smooth curves through a few measured colours, alpha rising with SRM.
ColorTable built_in_color_table();

/// The row, 0 to 399, that paints a colour. Below 0.2 SRM it is the first, above 40 the last.
std::size_t color_row_index(float srm);

/// Blends a channel over white paper; channel and alpha from 0 to 255.
std::int32_t blend_over_white(std::int32_t channel, std::int32_t alpha);

/// How opaque a colour is painted, 0 to 255: as the settings say, or as its row does.
std::int32_t swatch_alpha(const ColorTable& table, float srm, const Settings& settings);

/// The colour of a swatch as 0x00BBGGRR: the row of `srm`, calibrated and blended as the settings say.
std::uint32_t swatch_colour(const ColorTable& table, float srm, const Settings& settings);

inline constexpr std::string_view color_table_file = "kv_lovrgb.ldt";

/// Reads a table file (".ldt"). Rows that a short file lacks are black, SRM 40. False only if it cannot be
/// opened; the table is then untouched.
bool LoadColorTable(const std::string& path, ColorTable& table);

/// Replaces a table file. The fillers of the rows take random numbers grown from `seed`, so that two saves
/// of the same colours differ.
bool SaveColorTable(const std::string& path, ColorTable& table, std::int64_t seed);

/// The same from and to the bytes of a file.
ColorTable read_color_table(ByteView file);
Bytes color_table_bytes(const ColorTable& table);

} // namespace wortlex
