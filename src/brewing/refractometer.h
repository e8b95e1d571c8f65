// What a refractometer tells of a fermented wort. Readings are net Zeiss units; extracts are Plato.
#pragma once

#include "settings/settings.h"

namespace wortlex {

struct AlcoholFigures {
    float by_weight = 0;        ///< percent
    float by_volume = 0;        ///< percent
    float real_extract = 0;     ///< Plato
    float original_extract = 0; ///< Plato
    float net_zeiss = 0;
};

/// Net Zeiss of a Brix reading by the water calibration of the settings.
float net_zeiss_from_brix(float brix, const Settings& settings);

/// Alcohol and extracts from a reading and the SG of the sample. A reading too low for the SG gives no
/// alcohol and no original extract.
AlcoholFigures alcohol_from_reading(float sg, float net_zeiss);

/// The figures of the reading that would fit a hydrometer's gravities, found by stepping through the Brix
/// scale; 8 Brix where none fits.
AlcoholFigures implied_alcohol(float og_plato, float fg_plato, const Settings& settings);

} // namespace wortlex
