#include "base/number.h"

#include "base/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace wortlex {
namespace {

// Wide enough for the longest float in fixed form (39 digits) or double (309) with its decimals.
using NumberText = std::array<char, 360>;

std::string print(double value, std::chars_format format, int precision) {
    NumberText text;
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, format, std::clamp(precision, 0, 40));
    return {text.data(), end.ptr};
}

// The place for a number in a pattern.
struct Place {
    bool zeros = false;
    std::size_t width = 0;
    int decimals = 6;
    char kind = 'f';
};

std::size_t take_digits(std::string_view& pattern) {
    std::size_t number = 0;
    while (!pattern.empty() && pattern[0] >= '0' && pattern[0] <= '9') {
        number = std::min<std::size_t>(number * 10 + static_cast<std::size_t>(pattern[0] - '0'), 100);
        pattern.remove_prefix(1);
    }
    return number;
}

// Takes what follows the percent sign.
Place take_place(std::string_view& pattern) {
    Place place;
    place.zeros = pattern.starts_with('0');
    place.width = take_digits(pattern);
    if (pattern.starts_with('.')) {
        pattern.remove_prefix(1);
        place.decimals = static_cast<int>(take_digits(pattern));
    }
    if (!pattern.empty()) {
        place.kind = pattern[0];
        pattern.remove_prefix(1);
    }
    return place;
}

std::string fill(const Place& place, double value) {
    const bool is_number = std::isfinite(value);
    const bool zeros = place.zeros && is_number;
    auto text =
        place.kind == 'd' && is_number ? std::to_string(truncate(value)) : fixed(value, place.decimals);
    if (is_number && text.starts_with('-') && text.find_first_of("123456789") == std::string::npos)
        text.erase(0, 1); // a zero has no sign
    if (text.size() >= place.width) return text;
    const bool after_sign = zeros && text.starts_with('-');
    text.insert(after_sign ? 1 : 0, place.width - text.size(), zeros ? '0' : ' ');
    return text;
}

template <class Number>
std::optional<Number> parse_all(std::string_view text) {
    text = trimmed(text);
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    Number number{};
    const auto end = std::from_chars(text.data(), text.data() + text.size(), number);
    if (end.ec != std::errc{} || end.ptr != text.data() + text.size()) return std::nullopt;
    return number;
}

} // namespace

std::string fixed(double value, int decimals) {
    if (!std::isfinite(value)) return std::string(no_number);
    return print(value, std::chars_format::fixed, decimals);
}

std::string significant(double value, int digits) {
    return print(value, std::chars_format::general, digits);
}

std::optional<double> parse_number(std::string_view text) {
    const auto number = parse_all<double>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

double leading_number(std::string_view text) {
    text = trimmed(text);
    if (text.starts_with('+')) text.remove_prefix(1);
    double number = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), number);
    if (end.ec != std::errc::result_out_of_range) return number;
    const bool is_tiny = std::string_view(text.data(), end.ptr).find('-', 1) != std::string_view::npos;
    return is_tiny ? 0.0 : std::numeric_limits<double>::infinity();
}

std::string formatted(std::string_view pattern, double value) {
    std::string out;
    while (!pattern.empty()) {
        const auto plain = std::min(pattern.find('%'), pattern.size());
        out += pattern.substr(0, plain);
        pattern.remove_prefix(std::min(plain + 1, pattern.size()));
        if (pattern.starts_with('%')) {
            out += '%';
            pattern.remove_prefix(1);
        } else if (!pattern.empty()) {
            out += fill(take_place(pattern), value);
        }
    }
    return out;
}

std::optional<std::int32_t> parse_whole(std::string_view text) {
    return parse_all<std::int32_t>(text);
}

} // namespace wortlex
