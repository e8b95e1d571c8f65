// The calculator of the dough-in strike water. Each amount stands in its two units: as typed in the one, and
// worked out in the other.
#pragma once

#include "measures/twins.h"
#include "settings/settings.h"

namespace wortlex {

struct TwinWeight {
    float pounds = 0;
    float kilograms = 0;
};

struct TwinVolume {
    float quarts = 0;
    float litres = 0;
};

/// Both units from the one that was typed. An amount below 0 counts as 0.
TwinWeight of_pounds(float pounds);
TwinWeight of_kilograms(float kilograms);
TwinVolume of_quarts(float quarts);
TwinVolume of_litres(float litres);

struct StrikeCalculator {
    float thermal_mass = 0;
    TwinWeight grain;
    TwinVolume water;
    TwinDegrees wanted;
    TwinDegrees grain_at;
    float grain_water_volume = 0; ///< quarts that 1 quart of water and 1 pound of grain take

    float quarts_per_pound = 0; ///< 0 without grain; what stands from here on is worked out
    float litres_per_kilogram = 0;
    TwinDegrees strike;
    float mash_gallons = 0;
};

/// As it is at its first opening: grain temperature and thermal mass of the settings, and in a brewery much
/// more grain and water.
StrikeCalculator new_strike_calculator(const Settings& settings);

/// To be called at each opening. Until the first change the strike temperature in degrees C is that of the
/// mash.
void open_strike_calculator(StrikeCalculator& calculator, const Settings& settings);

/// Works out the ratios, the strike temperature and the volume of the mash, after any change.
void work_out_strike(StrikeCalculator& calculator);

/// The water follows the ratio and the grain. A ratio below 0.05 counts as 0.05.
void set_quarts_per_pound(StrikeCalculator& calculator, float ratio);
void set_litres_per_kilogram(StrikeCalculator& calculator, float ratio);

} // namespace wortlex
