// The way of the water on a brew day, drawn: at each stage what there is, and what was lost before it.
#pragma once

#include "base/ports/surface.h"
#include "water/water_needs_calculator.h"

namespace wortlex {

struct WaterLoss {
    const char* words;
    float gallons = 0;
};

struct WaterStage {
    const char* words;
    float gallons = 0;
    std::vector<WaterLoss> losses; ///< before it; none but what is above 0
};

/// From what is needed to what reaches the fermenter. Without a mash nothing is lost before the kettle.
std::vector<WaterStage> water_flow(const WaterNeeds& needs, const WaterBalance& balance, bool has_mash);

inline constexpr Extent water_flow_size{600, 196};

/// What the drawing tells, for those who do not see it.
std::string words_of_water_flow(const WaterPlan& plan, const Settings& settings);

/// On white, in the units of the plan.
void draw_water_flow(Surface& surface, const WaterPlan& plan, const Settings& settings);

} // namespace wortlex
