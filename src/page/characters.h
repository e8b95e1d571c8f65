// Characters of UTF-8 texts, for lines and columns that are counted in them.
#pragma once

#include <algorithm>
#include <string_view>

namespace wortlex {

/// Whether a character begins with this byte.
constexpr bool begins_character(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

inline std::size_t character_count(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), begins_character));
}

/// The first `count` characters, or all where there are fewer.
inline std::string_view first_characters(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    while (end < text.size() && (count > 0 || !begins_character(text[end]))) {
        if (begins_character(text[end])) --count;
        ++end;
    }
    return text.substr(0, end);
}

} // namespace wortlex
