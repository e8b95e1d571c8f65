#include "companion/json.h"

#include "base/number.h"

#include <array>
#include <cmath>

namespace wortlex {
namespace {

bool is_continuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// The length of the UTF-8 character at the start of `text`; 0 if there is none.
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

void append_escaped(std::string& out, char c) {
    constexpr std::string_view digits = "0123456789abcdef";
    switch (c) {
    case '"':
        out += "\\\"";
        return;
    case '\\':
        out += "\\\\";
        return;
    case '\n':
        out += "\\n";
        return;
    case '\r':
        out += "\\r";
        return;
    case '\t':
        out += "\\t";
        return;
    default:
        break;
    }
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20) {
        out += c;
        return;
    }
    out += "\\u00";
    out += digits[byte >> 4];
    out += digits[byte & 0x0F];
}

} // namespace

JsonWriter& JsonWriter::begin(std::string_view key, char bracket) {
    name(key);
    text_ += bracket;
    needs_comma_ = false;
    return *this;
}

JsonWriter& JsonWriter::end(char bracket) {
    text_ += bracket;
    needs_comma_ = true;
    return *this;
}

JsonWriter& JsonWriter::number(std::string_view key, double value) {
    name(key);
    text_ += std::isfinite(value) ? significant(value, 9) : "null";
    return *this;
}

JsonWriter& JsonWriter::string(std::string_view key, std::string_view value) {
    name(key);
    quote(value);
    return *this;
}

JsonWriter& JsonWriter::truth(std::string_view key, bool value) {
    name(key);
    text_ += value ? "true" : "false";
    return *this;
}

void JsonWriter::name(std::string_view key) {
    if (needs_comma_) text_ += ',';
    needs_comma_ = true;
    if (key.empty()) return;
    quote(key);
    text_ += ':';
}

void JsonWriter::quote(std::string_view value) {
    text_ += '"';
    while (!value.empty()) {
        const auto length = character_length(value);
        if (length == 0) text_ += "\xEF\xBF\xBD";
        if (length == 1) append_escaped(text_, value[0]);
        if (length > 1) text_ += value.substr(0, length);
        value.remove_prefix(length == 0 ? 1 : length);
    }
    text_ += '"';
}

} // namespace wortlex
