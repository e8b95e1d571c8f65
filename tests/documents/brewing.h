// Recipes to work out in tests.
#pragma once

#include "documents/recalculation.h"

namespace wortlex {

inline MaltUse malt(MaltType type, float potential, float amount, bool must_mash = false,
                    float coarse_yield = 0) {
    MaltUse line;
    line.record.malt_type = type;
    line.record.must_mash = must_mash ? 1 : 0;
    line.record.potential = potential;
    line.record.moisture = 4;
    line.record.coarse_yield = coarse_yield;
    line.amount = amount;
    line.points = 99; // to be written over
    return line;
}

inline HopUse hop(float alpha, float amount, std::int16_t time) {
    HopUse line;
    line.alpha = alpha;
    line.amount = amount;
    line.boil_time = time;
    return line;
}

/// 5 gallons from 6, at 75 percent.
inline BrewDocument empty_recipe() {
    BrewDocument document;
    document.batch_size = 5;
    document.wort_size = 6;
    document.efficiency = 0.75F;
    return document;
}

/// A line of every kind that counts in its own way.
inline BrewDocument five_malts() {
    auto document = empty_recipe();
    document.malts = {malt(MaltType::grain, 1.037F, 8, false, 78.5F),
                      malt(MaltType::extract, 1.036F, 1.5F, true, 70), // liquid, not mashed
                      malt(MaltType::sugar, 1.046F, 0.5F), malt(MaltType::other, 1.03F, 1, true, 60),
                      malt(MaltType::other, 0.98F, 2)};
    return document;
}

inline Settings brewing_settings() {
    Settings settings;
    settings.sucrose_value = 46.21F;
    settings.tinseth_factor = 1.3F;
    settings.kettle_factor = 1;
    settings.cooling_shrink = 0.04F;
    settings.grain_absorption = 0.2F;
    settings.grain_water_volume = 1.32F;
    settings.heat_capacity = 0.4F;
    return settings;
}

} // namespace wortlex
