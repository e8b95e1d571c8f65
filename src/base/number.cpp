#include "base/number.h"

#include <array>
#include <charconv>

namespace wortlex {
namespace {

// Wide enough for the longest float in fixed form (39 digits) or double (309) with its decimals.
using NumberText = std::array<char, 360>;

std::string_view without_blanks(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string print(double value, std::chars_format format, int precision) {
    NumberText text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value, format, precision);
    return {text.data(), end.ptr};
}

template <class Number>
std::optional<Number> parse_all(std::string_view text) {
    text = without_blanks(text);
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    Number number{};
    const auto end = std::from_chars(text.data(), text.data() + text.size(), number);
    if (end.ec != std::errc{} || end.ptr != text.data() + text.size()) return std::nullopt;
    return number;
}

} // namespace

std::string fixed(double value, int decimals) {
    return print(value, std::chars_format::fixed, decimals);
}

std::string significant(double value, int digits) {
    return print(value, std::chars_format::general, digits);
}

std::optional<double> parse_number(std::string_view text) {
    return parse_all<double>(text);
}

std::optional<std::int32_t> parse_whole(std::string_view text) {
    return parse_all<std::int32_t>(text);
}

} // namespace wortlex
