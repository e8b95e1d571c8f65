#include "forms/numeric_fields.h"

#include "base/number.h"
#include "measures/degrees.h"
#include "measures/precision.h"
#include "measures/rounding.h"

#include <algorithm>
#include <optional>

namespace wortlex {
namespace {

constexpr int spare_characters = 2;

std::string pattern_of(int width, int decimals) {
    std::string pattern = "%";
    pattern += std::to_string(width) + '.' + std::to_string(decimals) + 'f';
    return pattern;
}

std::string read(const TextField& field, int length) {
    return field.text().substr(0, static_cast<std::size_t>(std::max(length, 0)));
}

double value_of(const std::string& text) {
    return text.empty() ? 0.0 : leading_number(text);
}

bool is_numeral(char c, bool with_minus) {
    return (c >= '0' && c <= '9') || c == '.' || c == ' ' || (with_minus && c == '-');
}

// The number in the field, or nothing where a character had to be thrown out: the field is then mended and
// the caret stays where it was.
std::optional<double> typed_number(TextField& field, int length, bool with_minus,
                                   const std::string& old_text) {
    const int caret = field.caret();
    const auto text = read(field, length);
    const auto foreign =
        std::find_if(text.begin(), text.end(), [&](char c) { return !is_numeral(c, with_minus); });
    if (foreign == text.end()) return value_of(text);
    field.set_text(foreign == text.begin() ? old_text : std::string(text.begin(), foreign));
    field.set_caret(caret);
    return std::nullopt;
}

bool take(float& value, double number, float low, float high) {
    const float candidate = narrow(number);
    if (!(candidate >= low && candidate <= high) || candidate == value) return false;
    value = candidate;
    return true;
}

bool typed(TextField& field, float& value, const Range& range, int length, bool with_minus) {
    const auto number = typed_number(field, length, with_minus, fixed(value, 2));
    return number && take(value, *number, range.low, range.high);
}

bool typed_scale(TextField& field, float& value, const Range& range, int length, int digits) {
    const bool changed = typed(field, value, range, length, false);
    value = trunc_to_precision(value, digits);
    return changed;
}

// `show` writes the stepped value into the field.
template <class Show>
bool spin(TextField& field, float& value, const SpinRange& range, int length, Spin direction, Show show) {
    bool changed = take(value, value_of(read(field, length)), range.low, range.high);
    const bool down = direction == Spin::down && value > range.low;
    const bool up = direction == Spin::up && value < range.high;
    if (!down && !up) return changed;
    value = narrow(down ? double{value} - range.step : double{value} + range.step);
    show(value);
    return true;
}

std::string old_temperature(TemperatureUnits units, std::int32_t value) {
    if (units == TemperatureUnits::fahrenheit) return formatted("%d", value);
    return formatted("%d", celsius(value) + 0.5);
}

} // namespace

std::string sg_pattern(int width, const Settings& settings) {
    return pattern_of(width, sg_decimals(settings));
}

std::string plato_pattern(int width, const Settings& settings) {
    return pattern_of(width, plato_decimals(settings));
}

void show_float(TextField& field, float value, std::string_view pattern) {
    field.set_text(formatted(pattern, value));
}

void show_int(TextField& field, std::int32_t value, std::string_view pattern) {
    field.set_text(formatted(pattern, value));
}

void show_sg(TextField& field, float value, int width, const Settings& settings) {
    show_float(field, trunc_to_precision(value, 5), sg_pattern(width, settings));
}

void show_plato(TextField& field, float value, int width, const Settings& settings) {
    show_float(field, trunc_to_precision(value, 3), plato_pattern(width, settings));
}

bool typed_float(TextField& field, float& value, const Range& range, int length) {
    return typed(field, value, range, length + spare_characters, false);
}

bool typed_signed_float(TextField& field, float& value, const Range& range, int length) {
    return typed(field, value, range, length + spare_characters, true);
}

bool typed_sg(TextField& field, float& value, const Range& range, int length, const Settings& settings) {
    return typed_scale(field, value, range, length + more_decimals(settings.sg_precision), 5);
}

bool typed_plato(TextField& field, float& value, const Range& range, int length, const Settings& settings) {
    return typed_scale(field, value, range, length + more_decimals(settings.plato_precision), 3);
}

bool typed_int(TextField& field, std::int32_t& value, std::int32_t low, std::int32_t high, int length) {
    const auto number = typed_number(field, length + spare_characters, false, formatted("%d", value));
    if (!number) return false;
    const auto whole = truncate(*number);
    if (whole < low || whole > high || whole == value) return false;
    value = whole;
    return true;
}

std::int32_t highest_temperature(TemperatureUnits units) {
    return units == TemperatureUnits::fahrenheit ? 221 : 105;
}

bool typed_temperature(TemperatureUnits units, TextField& field, std::int32_t& value, int length) {
    const auto number = typed_number(field, length + spare_characters, false, old_temperature(units, value));
    if (!number) return false;
    const double highest = highest_temperature(units);
    const auto held = truncate(std::clamp(*number, 0.0, highest));
    if (*number < 0 || *number > highest) show_int(field, held, "%d");
    const bool changed = held != value;
    value = held;
    return changed;
}

bool spin_float(TextField& field, float& value, const SpinRange& range, int length, Spin direction,
                std::string_view pattern) {
    return spin(field, value, range, length + spare_characters, direction,
                [&](float stepped) { show_float(field, stepped, pattern); });
}

bool spin_sg(TextField& field, float& value, const SpinRange& range, int length, Spin direction, int width,
             const Settings& settings) {
    return spin(field, value, range, length + more_decimals(settings.sg_precision), direction,
                [&](float stepped) { show_float(field, stepped, sg_pattern(width, settings)); });
}

bool spin_plato(TextField& field, float& value, const SpinRange& range, int length, Spin direction, int width,
                const Settings& settings) {
    return spin(field, value, range, length + more_decimals(settings.plato_precision), direction,
                [&](float stepped) { show_float(field, stepped, plato_pattern(width, settings)); });
}

bool spin_int(TextField& field, std::int32_t& value, const SpinRange& range, int length, Spin direction,
              std::string_view pattern) {
    auto number = static_cast<float>(value);
    const bool changed = spin(field, number, range, length + spare_characters, direction,
                              [&](float stepped) { show_int(field, truncate(stepped), pattern); });
    value = truncate(number);
    return changed;
}

bool spin_temperature(TemperatureUnits units, TextField& field, std::int32_t& value, int length,
                      Spin direction) {
    const SpinRange range{0, static_cast<float>(highest_temperature(units)), 1};
    return spin_int(field, value, range, length, direction, "%d");
}

} // namespace wortlex
