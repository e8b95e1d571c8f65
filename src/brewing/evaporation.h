// How much wort a boil takes away. Volumes are of one unit.
#pragma once

#include <cstdint>

namespace wortlex {

struct EvaporationRate {
    float percent_per_hour = 0; ///< of the volume at the start; no number without one
    float volume_per_hour = 0;
};

/// From a boil that was measured, of at least a minute. What grows does not evaporate.
EvaporationRate evaporation_rate(float start_volume, float final_volume, std::int32_t minutes);

/// What a boil evaporates at a rate per hour, by percent of what is there at the start or by volume.
float evaporated_by_percent(float volume, float percent_per_hour, std::int32_t minutes);
float evaporated_by_volume(float volume_per_hour, std::int32_t minutes);

} // namespace wortlex
