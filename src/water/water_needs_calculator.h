// The Water Needed Calculator: the water of a brew day from the sparge to the fermenter.
#pragma once

#include "base/ports/prompts.h"
#include "brewing/water_balance.h"
#include "forms/form.h"
#include "page/page.h"

namespace wortlex {

/// What a window works on: a record and the balance that follows it. All must outlive its form.
struct WaterPlan {
    WaterNeeds& needs;
    WaterBalance& balance;
    const Units& units;
    Units* own_units =
        nullptr; ///< the tool's, to be chosen in its window; a session is shown in the system's
    std::function<bool()> has_mash = nullptr; ///< of a session, whose grain, mash and boil are its document's
};

/// Whether the grain is mashed: always in the tool.
inline bool has_mash(const WaterPlan& plan) {
    return !plan.has_mash || plan.has_mash();
}

/// The tool's own record. It lasts for the run.
struct WaterNeedsTool {
    WaterNeeds needs;
    WaterBalance balance;
    Units units = Units::american;

    WaterPlan plan() { return {needs, balance, units, &units}; }
};

/// At every opening: reads the brewer's usual figures anew, where there are any, in the units of the
/// settings. What is no number there is 0.
void open_water_needs(WaterNeedsTool& tool, const std::string& data_folder, const Settings& settings);

/// Asks, and makes `needs` the brewer's usual figures; a file that cannot be written is told. Whether they
/// are.
bool save_usual_water(const WaterNeeds& needs, const std::string& data_folder, Prompts& prompts);

struct WaterNeedsActions {
    std::function<void()> save_default;
    std::function<void()> print;
    std::function<void()> help;
};

/// After each edit the balance is worked out anew. Groups follow the water: sparge, mash, kettle, boil,
/// fermenter; then the whole need, the drawing "flow", and the buttons.
void water_needs_form(Form& form, const WaterPlan& plan, const Settings& settings, WaterNeedsActions actions);

/// The body of the worksheet, below its headers.
void print_water_needs(PageContext& page, const WaterNeeds& needs, const WaterBalance& balance, Units units,
                       const Settings& settings);

PrintRequest water_needs_printout(const WaterNeedsTool& tool, const Settings& settings);

} // namespace wortlex
