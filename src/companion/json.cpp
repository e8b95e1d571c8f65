#include "companion/json.h"

#include "base/number.h"
#include "companion/utf8.h"

#include <algorithm>
#include <cmath>

namespace wortlex {
namespace {

// Most of a line does, and is taken over in one piece.
bool stands_for_itself(char c) {
    return c >= ' ' && c <= '~' && c != '"' && c != '\\';
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
        const auto plain = static_cast<std::size_t>(
            std::find_if_not(value.begin(), value.end(), stands_for_itself) - value.begin());
        text_ += value.substr(0, plain);
        value.remove_prefix(plain);
        if (!value.empty()) value.remove_prefix(escape_first(value));
    }
    text_ += '"';
}

// Returns how many bytes of `value` that was.
std::size_t JsonWriter::escape_first(std::string_view value) {
    const auto length = character_length(value);
    if (length == 0) text_ += "\xEF\xBF\xBD";
    if (length == 1) append_escaped(text_, value[0]);
    if (length > 1 && is_control(value)) append_escaped(text_, value[1]); // its number is that byte
    if (length > 1 && !is_control(value)) text_ += value.substr(0, length);
    return length == 0 ? 1 : length;
}

} // namespace wortlex
