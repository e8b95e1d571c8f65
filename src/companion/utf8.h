// The characters of a text that claims to be UTF-8.
#pragma once

#include <cstddef>
#include <string_view>

namespace wortlex {

/// The bytes of the character at the start of `text`, which is not empty; 0 if there is none.
std::size_t character_length(std::string_view text);

/// Whether that character is one that a terminal obeys: below the blank, or U+007F to U+009F.
bool is_control(std::string_view text);

} // namespace wortlex
