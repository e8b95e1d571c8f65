#include "water/water_needs_calculator.h"

#include "base/number.h"

#include <cmath>

namespace wortlex {
namespace {

constexpr Message overwrite_usual_water = {.text = "Really Overwrite the Default Water Usage Data?",
                                           .icon = Icon::question};
constexpr Message usual_water_not_written = {
    .text = "The water usage data could not be written. Is the disk full, or the folder read-only?",
    .icon = Icon::error};

void make_numbers(WaterNeeds& needs) {
    for (auto* const figure :
         {&needs.sparge, &needs.sparge_deadspace, &needs.grain, &needs.mash_water, &needs.quarts_per_pound,
          &needs.top_up, &needs.lauter_loss, &needs.boil_minutes, &needs.evaporation_rate,
          &needs.kettle_deadspace, &needs.hopback, &needs.chiller, &needs.other})
        if (!std::isfinite(*figure)) *figure = 0;
}

} // namespace

void open_water_needs(WaterNeedsTool& tool, const std::string& data_folder, const Settings& settings) {
    LoadWaterUsage(data_folder, tool.needs);
    make_numbers(tool.needs);
    tool.units = settings.volume_units;
    tool.balance = BalanceWater(tool.needs, true, settings);
}

bool save_usual_water(const WaterNeeds& needs, const std::string& data_folder, Prompts& prompts) {
    if (prompts.ask_yes_no(overwrite_usual_water) != Answer::yes) return false;
    if (SaveWaterUsage(data_folder, needs)) return true;
    prompts.tell(usual_water_not_written);
    return false;
}

} // namespace wortlex
