// The water balance of a brew day and its file.
#pragma once

#include "base/layout.h"

#include <string>

namespace wortlex {

/// Volumes are gallons.
struct WaterNeeds {
    float sparge = 0;
    float sparge_deadspace = 0;
    float total_into_mash = 0; ///< calculated
    float grain = 0;           ///< pounds
    float mash_water = 0;
    float quarts_per_pound = 0;
    float grain_absorption = 0; ///< calculated
    float top_up = 0;           ///< added to the kettle
    float lauter_loss = 0;
    float boil_minutes = 0;
    float evaporation_rate = 0; ///< percent or gallons per hour, by the settings
    float kettle_deadspace = 0;
    float hopback = 0;
    float chiller = 0;
    float other = 0;

    bool operator==(const WaterNeeds&) const = default;
};

inline constexpr auto water_needs_layout = layout<WaterNeeds, 60>(
    at(0, &WaterNeeds::sparge), at(4, &WaterNeeds::sparge_deadspace), at(8, &WaterNeeds::total_into_mash),
    at(12, &WaterNeeds::grain), at(16, &WaterNeeds::mash_water), at(20, &WaterNeeds::quarts_per_pound),
    at(24, &WaterNeeds::grain_absorption), at(28, &WaterNeeds::top_up), at(32, &WaterNeeds::lauter_loss),
    at(36, &WaterNeeds::boil_minutes), at(40, &WaterNeeds::evaporation_rate),
    at(44, &WaterNeeds::kettle_deadspace), at(48, &WaterNeeds::hopback), at(52, &WaterNeeds::chiller),
    at(56, &WaterNeeds::other));

/// Reads the brewer's usual figures over `needs`; a missing file leaves them as they are.
void LoadWaterUsage(const std::string& data_folder, WaterNeeds& needs);
bool SaveWaterUsage(const std::string& data_folder, const WaterNeeds& needs);

} // namespace wortlex
