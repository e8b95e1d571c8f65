// Bringing a whole schedule up to date after any change.
#pragma once

#include "records/mash/schedules.h"

namespace wortlex {

/// The water of a mash after a recalculation.
struct MashWater {
    float quarts = 0;  ///< dough-in and all infusions
    float gallons = 0; ///< the mash itself, water and grain
};

/// The rests of a simple schedule to which water can be infused.
enum class InfusedRest { protein, intermediate, saccharification, mash_out };

/// Whether there is such a rest and one before it to infuse from.
bool can_infuse(const SimpleMash& mash, InfusedRest infused);

/// Works out the infusions of a simple schedule from `dough_in` quarts on `grain` pounds and returns the
/// quarts in the mash after the last. Where the intermediate rest is infused last, the dough-in counts twice;
/// that is how such a schedule has always been totalled.
float RecalculateSimpleInfusions(const SimpleMash& mash, InfusionExtras& infusions, float dough_in,
                                 float grain);

/// Works out every step of a complex schedule: the strike temperature, the water of infusions, the pull of
/// decoctions, the ratios in the shown unit.
MashWater RecalculateSteps(ComplexMash& mash, float dough_in, float grain, const Settings& settings);

/// Quarts infused by the steps, and by those before `step`: what is in the mash when that step begins.
float infused_water(const ComplexMash& mash);
float infused_water_before(const ComplexMash& mash, std::size_t step);

/// Water to grain as shown: quarts per pound, or litres per kilogram by the pound's and the gallon's factors.
/// 0 without either.
float shown_ratio(float quarts, float grain, Units units);
/// Quarts of a typed ratio.
float quarts_from_ratio(float ratio, float grain, Units units);
/// Quarts of the ratio of quarts per pound in the settings, by the factor that belongs to it in metric.
float quarts_from_default_ratio(float quarts_per_pound, float grain, Units units);

} // namespace wortlex
