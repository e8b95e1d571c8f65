#include "documents/forms/typed_amount.h"

#include "base/number.h"
#include "measures/units.h"

#include <algorithm>
#include <array>
#include <utility>

namespace wortlex {
namespace {

constexpr std::string_view digits = "0123456789";

struct UnitSpelling {
    std::string_view word;
    Unit unit;
};

constexpr std::array unit_spellings = {
    UnitSpelling{"lb", Unit::pounds},          UnitSpelling{"lbs", Unit::pounds},
    UnitSpelling{"pound", Unit::pounds},       UnitSpelling{"pounds", Unit::pounds},
    UnitSpelling{"oz", Unit::ounces},          UnitSpelling{"ounce", Unit::ounces},
    UnitSpelling{"ounces", Unit::ounces},      UnitSpelling{"g", Unit::grams},
    UnitSpelling{"gr", Unit::grams},           UnitSpelling{"gm", Unit::grams},
    UnitSpelling{"gram", Unit::grams},         UnitSpelling{"grams", Unit::grams},
    UnitSpelling{"kg", Unit::kilograms},       UnitSpelling{"kgs", Unit::kilograms},
    UnitSpelling{"kilo", Unit::kilograms},     UnitSpelling{"kilos", Unit::kilograms},
    UnitSpelling{"kilogram", Unit::kilograms}, UnitSpelling{"kilograms", Unit::kilograms}};

bool has_small_letters(std::string_view word, std::string_view letters) {
    return std::equal(word.begin(), word.end(), letters.begin(), letters.end(), [](char typed, char letter) {
        return (typed >= 'A' && typed <= 'Z' ? static_cast<char>(typed - 'A' + 'a') : typed) == letter;
    });
}

// How many of a unit make a pound or an ounce, as the dialogs of the lines have it.
double per_pound(Unit unit) {
    switch (unit) {
    case Unit::ounces:
        return 16;
    case Unit::grams:
        return grams_per_pound;
    case Unit::kilograms:
        return grams_per_pound / 1000;
    default:
        return 1;
    }
}

double per_ounce(Unit unit) {
    switch (unit) {
    case Unit::pounds:
        return 1.0 / 16;
    case Unit::grams:
        return grams_per_ounce;
    case Unit::kilograms:
        return grams_per_ounce / 1000;
    default:
        return 1;
    }
}

Unit grain_list_unit(const SystemSettings& settings) {
    return is_american(settings.weight_units) ? Unit::pounds : Unit::kilograms;
}

Unit hop_list_unit(const SystemSettings& settings) {
    if (is_american(settings.hop_weight_units)) return is_pro(settings) ? Unit::pounds : Unit::ounces;
    return is_pro(settings) ? Unit::kilograms : Unit::grams;
}

Unit told_or(Unit told, Unit usual) {
    return told == Unit::none ? usual : told;
}

} // namespace

std::string_view without_blanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string_view without_minutes(std::string_view text) {
    text = without_blanks(text);
    const auto end = std::min(text.find_first_not_of(digits), text.size());
    const auto word = without_blanks(text.substr(end));
    const bool is_minutes =
        word == "'" || has_small_letters(word, "min") || has_small_letters(word, "minutes");
    return end > 0 && is_minutes ? text.substr(0, end) : text;
}

bool is_ambiguous(std::string_view text) {
    const auto comma = text.find(',');
    if (comma == std::string_view::npos || comma == 0 || comma > 3 || text.front() == '0') return false;
    const auto behind = text.substr(comma + 1);
    return behind.size() == 3 && behind.find_first_not_of(digits) == std::string_view::npos;
}

std::optional<float> typed_number(std::string_view text) {
    text = without_blanks(text);
    const bool has_digit = text.find_first_of(digits) != std::string_view::npos;
    const auto marks = std::count_if(text.begin(), text.end(), [](char c) { return c == '.' || c == ','; });
    if (!has_digit || marks > 1 || is_ambiguous(text)) return std::nullopt;
    if (text.find_first_not_of("0123456789.,") != std::string_view::npos) return std::nullopt;
    std::string number(text);
    std::replace(number.begin(), number.end(), ',', '.');
    return narrow(leading_number(number));
}

std::optional<Unit> weight_unit_of(std::string_view word) {
    if (word.ends_with('.')) word.remove_suffix(1);
    for (const auto& [spelling, unit] : unit_spellings)
        if (has_small_letters(word, spelling)) return unit;
    return std::nullopt;
}

std::optional<TypedWeight> typed_weight(std::string_view text) {
    text = without_blanks(text);
    const auto end = std::min(text.find_first_not_of("0123456789.,"), text.size());
    const auto number = typed_number(text.substr(0, end));
    const auto word = without_blanks(text.substr(end));
    if (!number) return std::nullopt;
    if (word.empty()) return TypedWeight{*number};
    const auto unit = weight_unit_of(word);
    if (!unit) return std::nullopt;
    return TypedWeight{*number, *unit};
}

float pounds_of(const TypedWeight& weight, const SystemSettings& settings) {
    return narrow(weight.number / per_pound(told_or(weight.unit, grain_list_unit(settings))));
}

float ounces_of(const TypedWeight& weight, const SystemSettings& settings) {
    return narrow(weight.number / per_ounce(told_or(weight.unit, hop_list_unit(settings))));
}

} // namespace wortlex
