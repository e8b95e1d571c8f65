// What a refractometer tells of a fermenting wort, where alcohol bends its scale: with a second measure, the
// original gravity or a hydrometer, the two can be told apart. Readings are net Zeiss units, in which the
// regressions were made; extracts are Plato.
#pragma once

#include "brewing/refractometer_scales.h"

namespace wortlex {

struct AlcoholFigures {
    float by_weight = 0;        ///< percent
    float by_volume = 0;        ///< percent
    float real_extract = 0;     ///< Plato
    float original_extract = 0; ///< Plato
    float net_zeiss = 0;
};

/// Alcohol and extracts from a reading and the SG of the sample. A reading too low for the SG gives no
/// alcohol and no original extract.
AlcoholFigures alcohol_from_reading(float sg, float net_zeiss);

/// The gravity (SG) of the wort that it is now, from the extract that it began with.
float current_gravity(float original_plato, float net_zeiss);

/// The Brix readings that would fit a hydrometer's gravities, found by stepping up from water; 8 Brix where
/// none fits. The first by what the wort held at first, the second by the gravity that it has now.
float implied_reading(float og_plato, float fg_plato, const Settings& settings);
float implied_fermenting_reading(float og_plato, float fg_plato, const Settings& settings);

/// The figures of the first of the two.
AlcoholFigures implied_alcohol(float og_plato, float fg_plato, const Settings& settings);

} // namespace wortlex
