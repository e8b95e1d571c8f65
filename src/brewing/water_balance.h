// The water balance of a brew day, from what is put in to what reaches the fermenter.
#pragma once

#include "records/mash/schedules.h"
#include "records/water/water_needs.h"
#include "settings/settings.h"

namespace wortlex {

/// Gallons; none is held at zero.
struct WaterBalance {
    float needed = 0;
    float from_mash = 0;
    float into_kettle = 0;
    float after_boil = 0;
    float to_chillers = 0;
    float after_cooling = 0;
};

/// Balances `needs`, into which it writes the water into the mash and the grain's absorption. `has_mash` is
/// false for an extract recipe: the top-up is then all the water.
WaterBalance BalanceWater(WaterNeeds& needs, bool has_mash, const Settings& settings);

/// The mash of a document as the balance needs it.
struct MashedGrain {
    float grain = 0; ///< pounds through the mash
    const SimpleMash& simple;
    const InfusionExtras& infusions;
    const ComplexMash& complex;
    bool is_complex = false;
};

/// Gallons of water that the schedule in force puts into the mash.
float mash_gallons(const MashedGrain& mash);

/// Brings a session's record up to date with its mash and boil.
void seed_water_needs(WaterNeeds& needs, const MashedGrain& mash, std::int32_t boil_minutes);

/// What an entry brings with it, before the balance. In metric the ratio holds the litres per kilogram as
/// entered, until the mash water is; a change of the grain takes either for quarts per pound.
void enter_grain(WaterNeeds& needs, float pounds);
void enter_water_ratio(WaterNeeds& needs, float ratio, Units units);
void enter_mash_water(WaterNeeds& needs, float gallons);

/// Quarts per pound as they stand, or litres per kilogram by mash water and grain; as entered without grain.
float shown_water_ratio(const WaterNeeds& needs, Units units);

/// Gallons left behind between kettle and fermenter.
float vessel_losses(const WaterNeeds& needs);

} // namespace wortlex
