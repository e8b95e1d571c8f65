// The heat and volume of a mash: pounds, quarts and degrees F.
//
// All are heat balances with water at 1. Strike and infusion take grain at a fixed 0.2 (quarts per pound),
// the decoction takes the heat capacity of the settings; the two are deliberately different.
#pragma once

#include "records/mash/schedules.h"

namespace wortlex {

/// Gallons of a mash of `grain` pounds and `water` quarts; 0 without either, never negative.
/// `grain_water_volume` is the quarts that 1 quart and 1 pound take.
float TotalMashVolume(float grain, float water, float grain_water_volume);

/// The strike water for a mash of `ratio` quarts per pound that is to come to `wanted`, in whole degrees. A
/// thermal mass scales the whole temperature. Without water it is the wanted temperature itself.
std::int32_t StrikeTemperature(std::int32_t wanted, std::int32_t grain_temperature, float ratio,
                               float thermal_mass);

/// The same of any temperatures, before the thermal mass, for a ratio above 0.
std::int32_t strike_without_tun(double wanted, double grain_temperature, float ratio);

/// Quarts at `infusion` degrees that raise `water` quarts on `grain` pounds from `from` to `to`. Water that
/// is as warm as the rest, or cannot raise it, gives 0.
float InfusionAmount(std::int32_t to, std::int32_t from, std::int32_t infusion, float water, float grain);

/// What a decoction starts from. The water is told in gallons here.
struct DecoctionMash {
    float grain = 0;         ///< pounds
    float water_gallons = 0; ///< in the mash at this point
    float heat_capacity = 0; ///< of malt
};

/// Quarts of mash to pull, so that returned at `returned` degrees it raises the rest from `from` to `to`.
/// `thickness` is quarts per pound of the pulled mash, 0 for that of the whole.
float DecoctionVolume(std::int32_t from, std::int32_t to, const DecoctionMash& mash, std::int32_t returned,
                      float thickness);

/// The temperature that a simple schedule mashes in at: its first rest, or 155.
std::int32_t default_first_rest(const SimpleMash& mash);

} // namespace wortlex
