// Settings, lines and recipes to work out in tests.
#pragma once

#include "documents/document_recalculation.h"
#include "support/measured_in.h"
#include "support/worked_figures.h"

namespace wortlex {

inline Settings brewing_settings(Units units = Units::american) {
    Settings settings;
    measure_in(settings, units);
    settings.sucrose_value = 46.21F;
    settings.tinseth_factor = 1.3F;
    settings.kettle_factor = 1;
    settings.plug_increase = 0.02F;
    settings.pellet_increase = 0.1F;
    settings.first_wort_change = 10;
    settings.mash_hop_change = -20;
    settings.cooling_shrink = 0.04F;
    settings.grain_absorption = 0.2F;
    settings.grain_water_volume = 1.32F;
    settings.heat_capacity = 0.4F;
    return settings;
}

inline MaltUse malt(MaltType type, float potential, float amount, bool must_mash = false,
                    float coarse_yield = 0, float colour = 0) {
    MaltUse line;
    line.record.malt_type = type;
    line.record.must_mash = must_mash ? 1 : 0;
    line.record.potential = potential;
    line.record.moisture = 4;
    line.record.coarse_yield = coarse_yield;
    line.record.colour = colour;
    line.amount = amount;
    line.points = 99; // to be written over
    return line;
}

inline HopUse hop(float alpha, float amount, int time) {
    return {.record = {}, .alpha = alpha, .amount = amount, .boil_time = static_cast<std::int16_t>(time)};
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

/// Of the usual sparge and boil.
// clang-format off
inline constexpr WaterNeeds usual_water{.sparge = 5, .sparge_deadspace = 0.5F, .grain = 10, .mash_water = 3,
    .lauter_loss = 0.25F, .boil_minutes = 60, .evaporation_rate = 10};
// clang-format on

/// Loses a gallon behind the kettle.
inline void add_losses(WaterNeeds& needs) {
    needs.kettle_deadspace = 0.5F;
    needs.hopback = 0.25F;
    needs.chiller = needs.other = 0.125F;
}

} // namespace wortlex
