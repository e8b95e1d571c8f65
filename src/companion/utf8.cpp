#include "companion/utf8.h"

namespace wortlex {
namespace {

bool is_continuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

} // namespace

std::size_t character_length(std::string_view text) {
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < 0x80) return 1;
    std::size_t length = 0;
    if (first >= 0xC2 && first < 0xE0) length = 2;
    if (first >= 0xE0 && first < 0xF0) length = 3;
    if (first >= 0xF0 && first < 0xF5) length = 4;
    if (length == 0 || text.size() < length) return 0;
    const auto second = static_cast<unsigned char>(text[1]);
    const bool too_long = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
    const bool no_character = (first == 0xED && second >= 0xA0) || (first == 0xF4 && second >= 0x90);
    for (std::size_t i = 1; i < length; ++i) {
        if (!is_continuation(text[i])) return 0;
    }
    return too_long || no_character ? 0 : length;
}

bool is_control(std::string_view text) {
    const auto first = static_cast<unsigned char>(text[0]);
    if (first != 0xC2) return first < 0x20 || first == 0x7F;
    return character_length(text) == 2 && static_cast<unsigned char>(text[1]) < 0xA0;
}

} // namespace wortlex
