// Windows-1252, the encoding of every text in a record, and UTF-8, in which the rest of the world speaks.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace wortlex {

/// UTF-8 of a Windows-1252 text. The five bytes without a character (0x81, 0x8D, 0x8F, 0x90, 0x9D)
/// become the control characters of the same number, so that every byte comes back.
std::string utf8_from_windows1252(std::string_view text);

/// Windows-1252 of a UTF-8 text; nothing if the text is not UTF-8 or holds a character that
/// Windows-1252 lacks.
std::optional<std::string> windows1252_from_utf8(std::string_view text);

} // namespace wortlex
