// Numbers and weights as a brewer types them, units and all.
#pragma once

#include "measures/unit_words.h"

#include <optional>
#include <string>
#include <string_view>

namespace wortlex {

/// A number from 0 up, its decimals behind a point or a comma. Nothing if it is none, or if it could be read
/// in two ways: "1,500" is a thousand and a half to one, one and a half to another.
std::optional<float> typed_number(std::string_view text);

/// Whether a comma in a number may mark thousands as well as decimals.
bool is_ambiguous(std::string_view text);

/// Pounds, ounces, grams or kilograms, by any of the usual words for them.
std::optional<Unit> weight_unit_of(std::string_view word);

/// A number with a unit behind it, blanks between them allowed.
struct TypedWeight {
    float number = 0;
    Unit unit = Unit::none; ///< none: it was not told
};
std::optional<TypedWeight> typed_weight(std::string_view text);

/// Without a unit it is that of the list.
float pounds_of(const TypedWeight& weight, const SystemSettings& settings);
float ounces_of(const TypedWeight& weight, const SystemSettings& settings);

/// A number of minutes without the word for them: "60 min" as "60".
std::string_view without_minutes(std::string_view text);

/// Those around it.
std::string_view without_blanks(std::string_view text);

} // namespace wortlex
