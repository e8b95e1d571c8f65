// Texts of documents on their way to a terminal, which obeys control characters.
#pragma once

#include <string>
#include <string_view>

namespace wortlex {

/// One line: every control character, of one byte or of two, and every byte that is no character at all is
/// shown as "?".
std::string one_line(std::string_view utf8);
/// The same of a text of a record.
std::string one_line_of(std::string_view windows1252);

/// A report of many lines, whose line ends and tabs stay.
std::string terminal_text(std::string_view report);

} // namespace wortlex
