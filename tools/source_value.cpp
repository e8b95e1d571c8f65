#include "source_value.h"

#include "base/files.h"
#include "base/number.h"
#include "base/windows1252.h"

namespace wortlex {
namespace {

bool is_control(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

std::string range(double low, double high) {
    return " is not within " + significant(low, 9) + " to " + significant(high, 9);
}

} // namespace

void refuse(const Place& place, const std::string& reason) {
    throw SourceFault(place.file + ":" + std::to_string(place.line) + ": " + reason);
}

std::vector<std::string> read_lines(const std::string& path) {
    const auto file = read_file(path);
    if (!file) throw SourceFault(path + ": cannot be read");
    std::vector<std::string> lines(1);
    for (const auto byte : *file) {
        const char c = static_cast<char>(byte);
        if (c == '\n') {
            lines.emplace_back();
        } else if (c != '\r') {
            lines.back() += c;
        }
    }
    return lines;
}

float SourceValue::number(double low, double high) const {
    const auto value = parse_number(text);
    if (!value) refuse(place, name + ": \"" + text + "\" is not a number");
    if (!(*value >= low && *value <= high)) refuse(place, name + ": " + text + range(low, high));
    return narrow(*value);
}

std::int32_t SourceValue::whole(std::int32_t low, std::int32_t high) const {
    const auto value = parse_whole(text);
    if (!value) refuse(place, name + ": \"" + text + "\" is not a whole number");
    if (*value < low || *value > high) refuse(place, name + ": " + text + range(low, high));
    return *value;
}

std::string SourceValue::windows1252(std::size_t limit) const {
    const auto converted = windows1252_from_utf8(text);
    if (!converted) refuse(place, name + " is not UTF-8 or holds a character that Windows-1252 lacks");
    for (const char c : *converted) {
        if (is_control(c)) refuse(place, name + " holds a control character");
    }
    if (converted->size() > limit) refuse(place, name + " is longer than " + std::to_string(limit));
    return *converted;
}

std::vector<SourceValue> SourceValue::parts(std::size_t least, std::size_t most) const {
    std::vector<SourceValue> parts;
    std::size_t start = 0;
    while (start <= text.size()) {
        const auto end = std::min(text.find('|', start), text.size());
        const auto part = trimmed(std::string_view(text).substr(start, end - start));
        parts.push_back({place, name + ", part " + std::to_string(parts.size() + 1), std::string(part)});
        start = end + 1;
    }
    if (parts.size() < least) refuse(place, name + " has too few parts");
    if (parts.size() > most) refuse(place, name + " has too many parts");
    return parts;
}

} // namespace wortlex
