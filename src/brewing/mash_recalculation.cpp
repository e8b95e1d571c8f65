#include "brewing/mash_recalculation.h"

#include "base/number.h"
#include "brewing/mash_water.h"
#include "measures/units.h"

#include <algorithm>
#include <array>

namespace wortlex {
namespace {

const Rest& rest_after(const SimpleMash& mash, InfusedRest infused) {
    const std::array rests = {&mash.protein, &mash.intermediate, &mash.saccharification, &mash.mash_out};
    return *rests.at(static_cast<std::size_t>(infused));
}

// The rest that an infusion starts from, the nearest before it; a single step has only the saccharification.
// Null for none.
const Rest* rest_before(const SimpleMash& mash, InfusedRest infused) {
    const std::array rests = {&mash.acid, &mash.protein, &mash.intermediate, &mash.saccharification};
    const std::size_t first = mash.mash_kind == MashKind::single_step ? rests.size() - 1 : 0;
    for (auto place = static_cast<std::size_t>(infused) + 1; place > first; --place)
        if (rests.at(place - 1)->is_present()) return rests.at(place - 1);
    return nullptr;
}

// What one infusion adds, and whether it could be worked out. An infusion that could not is 0.
bool infuse(const Rest& to, const Rest* from, Infusion& infusion, double water, float grain) {
    infusion.amount = 0;
    if (from == nullptr || !to.is_present() || infusion.temperature == 0) return false;
    infusion.amount =
        InfusionAmount(to.temperature, from->temperature, infusion.temperature, narrow(water), grain);
    return true;
}

float single_step_infusion(const SimpleMash& mash, InfusionExtras& infusions, float dough_in, float grain) {
    infuse(mash.mash_out, rest_before(mash, InfusedRest::mash_out), infusions.mash_out, dough_in, grain);
    return narrow(double{dough_in} + infusions.mash_out.amount);
}

float multi_step_infusions(const SimpleMash& mash, InfusionExtras& infusions, float dough_in, float grain) {
    const auto& protein = mash.protein;
    const auto& intermediate = mash.intermediate;
    const auto& saccharification = mash.saccharification;
    auto& to_protein = infusions.protein;
    auto& to_intermediate = infusions.intermediate;
    auto& to_saccharification = infusions.saccharification;
    auto& to_mash_out = infusions.mash_out;
    const double q = dough_in;
    double total = q;

    if (infuse(protein, rest_before(mash, InfusedRest::protein), to_protein, q, grain))
        total = q + to_protein.amount;

    const double at_protein = protein.is_present() ? q + to_protein.amount : q;
    if (infuse(intermediate, rest_before(mash, InfusedRest::intermediate), to_intermediate, at_protein,
               grain))
        total = q + at_protein + to_intermediate.amount;

    const double at_intermediate =
        intermediate.is_present() ? at_protein + to_intermediate.amount : at_protein;
    const double sum_to_intermediate = q + to_protein.amount + to_intermediate.amount;
    if (infuse(saccharification, rest_before(mash, InfusedRest::saccharification), to_saccharification,
               at_intermediate, grain))
        total = sum_to_intermediate + to_saccharification.amount;

    const double at_saccharification =
        saccharification.is_present() ? at_intermediate + to_saccharification.amount : at_intermediate;
    if (infuse(mash.mash_out, rest_before(mash, InfusedRest::mash_out), to_mash_out, at_saccharification,
               grain))
        total = sum_to_intermediate + to_saccharification.amount + to_mash_out.amount;

    return narrow(total);
}

float pulled_mash(const MashStep& before, const MashStep& step, float quarts, float grain,
                  const Settings& settings) {
    if (step.start_temperature <= before.stop_temperature) return 0;
    const DecoctionMash mash{grain, narrow(quarts / 4.0), settings.heat_capacity};
    return DecoctionVolume(before.stop_temperature, step.start_temperature, mash, step.infuse_temperature,
                           step.ratio);
}

double kilograms(float pounds) {
    return pounds * grams_per_pound / 1000.0;
}

} // namespace

bool can_infuse(const SimpleMash& mash, InfusedRest infused) {
    return rest_after(mash, infused).is_present() && rest_before(mash, infused) != nullptr;
}

float RecalculateSimpleInfusions(const SimpleMash& mash, InfusionExtras& infusions, float dough_in,
                                 float grain) {
    return mash.mash_kind == MashKind::single_step ? single_step_infusion(mash, infusions, dough_in, grain)
                                                   : multi_step_infusions(mash, infusions, dough_in, grain);
}

MashWater RecalculateSteps(ComplexMash& mash, float dough_in, float grain, const Settings& settings) {
    const auto steps = mash.used_steps();
    float total = dough_in;
    if (!steps.empty()) {
        auto& first = steps.front();
        first.amount = total;
        first.infuse_temperature = StrikeTemperature(first.start_temperature, mash.grain_temperature,
                                                     narrow(double{total} / grain), mash.tun_thermal_mass);
        first.ratio = shown_ratio(total, grain, settings.volume_units);
    }
    for (std::size_t i = 1; i < steps.size(); ++i) {
        auto& step = steps[i];
        const auto& before = steps[i - 1];
        if (step.heat_type == StepHeat::infuse) {
            step.amount = InfusionAmount(step.start_temperature, before.stop_temperature,
                                         step.infuse_temperature, total, grain);
            total = narrow(double{total} + step.amount);
            step.ratio = shown_ratio(total, grain, settings.volume_units);
        } else if (step.heat_type == StepHeat::decoction) {
            step.amount = pulled_mash(before, step, total, grain, settings);
        }
    }
    const bool is_mash = total > 0 && grain > 0;
    return {total, is_mash ? TotalMashVolume(grain, total, settings.grain_water_volume) : 0.0F};
}

float infused_water_before(const ComplexMash& mash, std::size_t step) {
    float quarts = 0;
    const auto steps = mash.used_steps();
    for (const auto& earlier : steps.first(std::min(step, steps.size()))) {
        if (earlier.heat_type == StepHeat::infuse) quarts = narrow(double{quarts} + earlier.amount);
    }
    return quarts;
}

float infused_water(const ComplexMash& mash) {
    return infused_water_before(mash, mash_step_slots);
}

float shown_ratio(float quarts, float grain, Units units) {
    if (!(quarts > 0 && grain > 0)) return 0;
    if (units == Units::american) return narrow(double{quarts} / grain);
    return narrow(quarts / 4.0 * litres_per_gallon / kilograms(grain));
}

float quarts_from_ratio(float ratio, float grain, Units units) {
    if (units == Units::american) return narrow(double{grain} * ratio);
    return narrow(kilograms(grain) * ratio * fluid_ounces_per_litre / 32.0);
}

float quarts_from_default_ratio(float quarts_per_pound, float grain, Units units) {
    constexpr double litres_per_kilogram = 2.0888;
    if (units == Units::american) return quarts_from_ratio(quarts_per_pound, grain, units);
    return narrow(kilograms(grain) * (quarts_per_pound * litres_per_kilogram) * fluid_ounces_per_litre /
                  32.0);
}

} // namespace wortlex
