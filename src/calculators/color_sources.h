// Where the rows of a colour table may come from besides a table file: a text and a picture.
#pragma once

#include "base/ports/surface.h"
#include "brewing/beer_colour.h"

namespace wortlex {

/// Reads a line a row: SRM, red, green, blue and alpha, numbers with a point, blanks or tabs between them.
/// The text ends with its first line that is none; rows that it lacks are black, SRM 40, as in a short table
/// file. Whether it had all rows.
bool read_color_text(std::string_view text, std::span<ColorRow, color_rows> rows);

/// The picture that holds a table: its top line, from pale to dark.
inline constexpr int color_picture_width = 1120, color_picture_height = 5;

/// Takes the rows from a picture, alpha 255. False for one of another size; the rows are then untouched.
bool read_color_picture(const Pixels& pixels, std::span<ColorRow, color_rows> rows);

} // namespace wortlex
