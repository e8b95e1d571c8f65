#include "calculators/ibu_calculator.h"

#include "base/number.h"
#include "measures/units.h"

#include <algorithm>

namespace wortlex {
namespace {

float held_volume(float gallons, const Settings& settings) {
    return std::clamp(gallons, from_shown_volume(calculator_range::least_volume, settings),
                      from_shown_volume(calculator_range::most_volume, settings));
}

// Bittering units are divided by the alpha before storage, whose loss they drop.
float weight_for(HopCalculator& calculator, float units) {
    calculator.adjusted_alpha = calculator.start_alpha;
    return narrow(std::max(units, 0.0F) / double{calculator.start_alpha});
}

struct Kettle {
    float wort, batch; // gallons
};

Kettle kettle_of(const HopMemory& memory, const Settings& settings) {
    if (memory.batch_volume > 0) return {memory.wort_volume, memory.batch_volume};
    return {settings.wort_size, std::max(settings.batch_size, settings.wort_size)};
}

} // namespace

HopCalculator start_calculator(const HopUse& hop, const HopMemory& memory, const Settings& settings) {
    const auto kettle = kettle_of(memory, settings);
    HopCalculator calculator{.start_alpha = hop.alpha,
                             .adjusted_alpha = hop.alpha,
                             .wort_volume = kettle.wort,
                             .batch_volume = kettle.batch,
                             .sg = memory.sg,
                             .boil_minutes = memory.boil_minutes,
                             .form = form(hop.record),
                             .is_first_wort = memory.is_first_wort,
                             .is_mash_hop = memory.is_mash_hop,
                             .bag_used = memory.bag_used,
                             .beer_filtered = memory.beer_filtered,
                             .factors = {}};
    set_ounces(calculator, is_pro(settings) ? 16.0F : 1.0F, settings);
    return calculator;
}

void remember_calculator(const HopCalculator& calculator, HopMemory& memory) {
    memory.wort_volume = calculator.wort_volume;
    memory.batch_volume = calculator.batch_volume;
    memory.sg = calculator.sg;
    memory.boil_minutes = calculator.boil_minutes;
    memory.is_first_wort = calculator.is_first_wort;
    memory.is_mash_hop = calculator.is_mash_hop;
    memory.bag_used = calculator.bag_used;
    memory.beer_filtered = calculator.beer_filtered;
}

void take_storage_loss(HopCalculator& calculator, float start_alpha, float adjusted_alpha,
                       const Settings& settings) {
    calculator.start_alpha = start_alpha;
    calculator.adjusted_alpha = adjusted_alpha;
    ibu_from_weight(calculator, settings);
}

void set_ounces(HopCalculator& calculator, float ounces, const Settings& settings) {
    calculator.ounces = ounces;
    calculator.grams = narrow(ounces * grams_per_ounce);
    ibu_from_weight(calculator, settings);
}

void set_grams(HopCalculator& calculator, float grams, const Settings& settings) {
    calculator.grams = grams;
    calculator.ounces = narrow(grams / grams_per_ounce);
    ibu_from_weight(calculator, settings);
}

void set_start_alpha(HopCalculator& calculator, float alpha, const Settings& settings) {
    const float held = std::clamp(alpha, 0.0F, calculator_range::most_alpha);
    take_storage_loss(calculator, held, held, settings);
}

void set_hbu(HopCalculator& calculator, float units, const Settings& settings) {
    set_ounces(calculator, weight_for(calculator, units), settings);
}

void set_mbu(HopCalculator& calculator, float units, const Settings& settings) {
    set_grams(calculator, weight_for(calculator, units), settings);
}

void set_wort(HopCalculator& calculator, float gallons, const Settings& settings) {
    calculator.wort_volume = held_volume(gallons, settings);
    calculator.batch_volume = std::max(calculator.batch_volume, calculator.wort_volume);
    ibu_from_weight(calculator, settings);
}

void set_batch(HopCalculator& calculator, float gallons, const Settings& settings) {
    calculator.batch_volume = held_volume(gallons, settings);
    calculator.wort_volume = std::min(calculator.wort_volume, calculator.batch_volume);
    ibu_from_weight(calculator, settings);
}

void set_sg(HopCalculator& calculator, float sg, const Settings& settings) {
    calculator.sg = std::clamp(sg, calculator_range::least_sg, calculator_range::most_sg);
    ibu_from_weight(calculator, settings);
}

void set_ibu(HopCalculator& calculator, float ibu, const Settings& settings) {
    calculator.ibu = ibu;
    weight_from_ibu(calculator, settings);
}

void set_first_wort(HopCalculator& calculator, bool on, const Settings& settings) {
    calculator.is_first_wort = on;
    if (on) calculator.is_mash_hop = false;
    ibu_from_weight(calculator, settings);
}

void set_mash_hop(HopCalculator& calculator, bool on, const Settings& settings) {
    calculator.is_mash_hop = on;
    if (on) calculator.is_first_wort = false;
    ibu_from_weight(calculator, settings);
}

} // namespace wortlex
