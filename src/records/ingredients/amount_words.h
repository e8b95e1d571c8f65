// What the amounts of extra ingredients are measured in.
#pragma once

#include "measures/unit_words.h"
#include "records/ingredients/ingredients.h"

namespace wortlex {

/// Empty words for a code that no file should hold.
inline const UnitWords& words_of(AmountUnit unit) {
    constexpr std::array units = {Unit::ounces,      Unit::grams, Unit::pounds, Unit::teaspoons,
                                  Unit::tablespoons, Unit::cups,  Unit::pieces};
    const auto code = static_cast<std::size_t>(unit);
    return words_of(code < units.size() ? units.at(code) : Unit::none);
}

} // namespace wortlex
