#include "base/windows1252.h"

#include "base/take_while.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace wortlex {
namespace {

// The characters of bytes 0x80 to 0x9F; all others have the number of their byte.
constexpr std::array<char16_t, 32> upper_controls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t character_of(std::uint8_t byte) {
    return byte >= 0x80 && byte < 0xA0 ? upper_controls[byte - 0x80] : byte;
}

bool is_ascii(char byte) {
    return static_cast<std::uint8_t>(byte) < 0x80;
}

std::optional<char> byte_of(char32_t character) {
    const auto* const found = std::find(upper_controls.begin(), upper_controls.end(), character);
    if (found != upper_controls.end()) return static_cast<char>(0x80 + (found - upper_controls.begin()));
    if (character < 0x80 || (character >= 0xA0 && character < 0x100)) return static_cast<char>(character);
    return std::nullopt;
}

void append_utf8(std::string& out, char16_t character) {
    if (character < 0x80) {
        out += static_cast<char>(character);
    } else if (character < 0x800) {
        out += static_cast<char>(0xC0 | (character >> 6));
        out += static_cast<char>(0x80 | (character & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (character >> 12));
        out += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (character & 0x3F));
    }
}

// Takes one character off `text`. Four-byte characters are outside Windows-1252 and need no decoding.
std::optional<char32_t> take_utf8(std::string_view& text) {
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    const auto continues = [&](std::size_t i) { return i < text.size() && (byte(i) & 0xC0) == 0x80; };
    char32_t character = byte(0);
    std::size_t length = 1;
    if ((character & 0xE0) == 0xC0 && continues(1)) {
        character = (character & 0x1FU) << 6 | (byte(1) & 0x3FU);
        length = character < 0x80 ? 0 : 2;
    } else if ((character & 0xF0) == 0xE0 && continues(1) && continues(2)) {
        character = (character & 0x0FU) << 12 | (byte(1) & 0x3FU) << 6 | (byte(2) & 0x3FU);
        length = character < 0x800 ? 0 : 3;
    } else if (character >= 0x80) {
        length = 0;
    }
    if (length == 0) return std::nullopt;
    text.remove_prefix(length);
    return character;
}

} // namespace

std::string utf8_from_windows1252(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        out += take_while(text, is_ascii);
        if (text.empty()) break;
        append_utf8(out, character_of(static_cast<std::uint8_t>(text.front())));
        text.remove_prefix(1);
    }
    return out;
}

std::optional<std::string> windows1252_from_utf8(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const auto character = take_utf8(text);
        const auto byte = character ? byte_of(*character) : std::nullopt;
        if (!byte) return std::nullopt;
        out += *byte;
    }
    return out;
}

} // namespace wortlex
