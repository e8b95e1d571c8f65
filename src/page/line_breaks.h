// Where the lines of a long text end, on a surface that tells how wide it is.
#pragma once

#include "base/ports/surface.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace wortlex {

/// What a line takes, in the font that is set on `measure`.
struct LineRoom {
    const Surface& measure;
    int dots = 0;
    std::size_t characters = static_cast<std::size_t>(-1);
};

/// The longest start of a text, of whole characters, that fits.
std::string_view start_that_fits(std::string_view text, const LineRoom& room);

/// A text in lines: each ends at the last blank within the room, in a word only where there is none. The
/// blanks at a break belong to no line. An empty text is one empty line.
std::vector<std::string> wrapped(std::string_view text, const LineRoom& room);

/// The same for a text whose carriage returns end lines, and whose line feeds are dropped; tabs are blanks.
/// An empty text has no line.
std::vector<std::string> paragraph_lines(std::string_view text, const LineRoom& room);

} // namespace wortlex
