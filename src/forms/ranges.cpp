#include "forms/ranges.h"

#include "base/number.h"

#include <algorithm>

namespace wortlex {
namespace {

// A limit as short as can be.
std::string limit(double value) {
    constexpr int digits = 7;
    return significant(value, digits);
}

} // namespace

std::string range_in_words(double low, double high, double everything) {
    if (low <= -everything && high >= everything) return "";
    if (high >= everything) return limit(low) + " or more";
    return low <= -everything ? limit(high) + " or less" : limit(low) + " to " + limit(high);
}

std::optional<double> limit_beyond(std::string text, double low, double high) {
    std::replace(text.begin(), text.end(), ',', '.');
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos || text.find_first_of("0123456789") == std::string::npos) return {};
    if (std::string_view("0123456789.-").find(text[first]) == std::string_view::npos) return {};
    const float number = narrow(leading_number(text));
    if (number < low) return low;
    return number > high ? std::optional(high) : std::nullopt;
}

std::string with_gravity_point(const std::string& text) {
    const auto first = text.find_first_not_of(' '), last = text.find_last_not_of(' ');
    if (first == std::string::npos) return text;
    const auto digits = text.substr(first, last - first + 1);
    const bool is_whole = digits.find_first_not_of("0123456789") == std::string::npos;
    if (is_whole && digits.size() == 3 && digits.front() == '9') return "0." + digits;
    if (is_whole && digits.size() == 4 && digits.front() == '1') return "1." + digits.substr(1);
    return text;
}

bool read_decimal_mark(const EntryRow& row, TextField& field) {
    const auto typed = field.text();
    auto text = typed;
    std::replace(text.begin(), text.end(), ',', '.');
    const auto marks = std::count(text.begin(), text.end(), '.');
    if (marks > 2 || (marks == 2 && !text.ends_with('.'))) {
        row.show(field);
        return false;
    }
    if (marks == 2) text.pop_back();
    if (row.is_gravity()) text = with_gravity_point(text);
    if (text == typed) return true;
    const auto size = static_cast<int>(text.size()), grown = size - static_cast<int>(typed.size());
    const int caret = field.caret() + std::max(grown, 0);
    field.set_text(text);
    field.set_caret(std::min(caret, size));
    return true;
}

} // namespace wortlex
