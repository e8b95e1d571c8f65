// The strike water of a session's simple schedule.
#pragma once

#include "forms/form.h"
#include "mash/strike_calculator.h"
#include "page/page.h"

namespace wortlex {

struct StrikeWater {
    float grain = 0;                    ///< pounds
    float quarts = 0;                   ///< to dough in
    std::int32_t wanted = 0;            ///< degrees F, of the mash
    std::int32_t grain_temperature = 0; ///< degrees F
    float thermal_mass = 0;
};

/// Whole degrees F; without water or grain the wanted temperature itself.
std::int32_t strike_temperature(const StrikeWater& water);

/// Edits `water`, which must outlive the form. An empty action disables its button.
void strike_water_form(Form& form, StrikeWater& water, const Settings& settings, std::function<void()> print,
                       std::function<void()> help);

PrintRequest strike_water_printout(const StrikeWater& water, const Settings& settings);

} // namespace wortlex
