// The units of a window of water needs: its own choice of American or metric, by kitchen or brewery.
#pragma once

#include "measures/unit_words.h"
#include "settings/settings.h"

namespace wortlex {

/// Gallons, barrels, litres or hectolitres.
inline const UnitWords& water_unit(Units units, const Settings& settings) {
    if (is_american(units)) return words_of(is_pro(settings) ? Unit::barrels : Unit::gallons);
    return words_of(is_pro(settings) ? Unit::hectolitres : Unit::litres);
}

inline const UnitWords& grain_unit(Units units) {
    return words_of(is_american(units) ? Unit::pounds : Unit::kilograms);
}

} // namespace wortlex
