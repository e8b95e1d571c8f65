#include "companion/json.h"

#include "base/number.h"
#include "companion/utf8.h"

#include <array>
#include <cmath>

namespace wortlex {
namespace {

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
    if (byte >= 0x20 && byte < 0x7F) {
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
        if (length > 1 && is_control(value)) append_escaped(text_, value[1]); // its number is that byte
        if (length > 1 && !is_control(value)) text_ += value.substr(0, length);
        value.remove_prefix(length == 0 ? 1 : length);
    }
    text_ += '"';
}

} // namespace wortlex
