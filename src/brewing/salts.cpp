#include "brewing/salts.h"

#include "base/number.h"
#include "brewing/water_ph.h"
#include "measures/units.h"

#include <algorithm>
#include <cmath>

namespace wortlex {
namespace {

constexpr double balanced_part = 0.1;

void take_rate(WaterAnalysis& analysis, const SaltEffect& salt) {
    const float rate = analysis.rate(salt.salt);
    auto& added = analysis.added(salt.salt);
    added.*salt.cation = narrow(double{rate} * salt.cation_factor);
    added.*salt.anion = narrow(double{rate} * salt.anion_factor);
}

double kept_part(const WaterAnalysis& analysis) {
    return 1.0 - analysis.dilution_rate;
}

void add_up(WaterAnalysis& analysis, float WaterRecord::*ion) {
    double sum = 0;
    for (const auto& salt : analysis.salts) sum += salt.*ion;
    analysis.totals.*ion = narrow(sum);
    analysis.result.*ion = narrow(analysis.totals.*ion + analysis.source.*ion * kept_part(analysis));
}

void add_up(WaterAnalysis& analysis) {
    for (const auto& ion : ions) add_up(analysis, ion.ppm);
    add_up(analysis, &WaterRecord::reserved_39);
}

} // namespace

void set_salt_rate(WaterAnalysis& analysis, const SaltEffect& salt, float rate) {
    analysis.rate(salt.salt) = rate;
    take_rate(analysis, salt);
    add_up(analysis);
}

void compare_waters(WaterAnalysis& analysis) {
    for (const auto& ion : ions)
        analysis.difference.*ion.ppm =
            narrow(analysis.target.*ion.ppm - analysis.source.*ion.ppm * kept_part(analysis));
    add_up(analysis);
}

float diluted(const WaterAnalysis& analysis, const Ion& ion) {
    return narrow(analysis.source.*ion.ppm * kept_part(analysis));
}

void reset_salts(WaterAnalysis& analysis) {
    analysis.rates = {};
    analysis.salts = {};
    analysis.totals = {};
    analysis.totals.ph = neutral_ph;
    add_up(analysis);
}

void settle_water(WaterAnalysis& analysis) {
    for (const auto& salt : salt_effects) take_rate(analysis, salt);
    compare_waters(analysis);
}

float salt_quantity(float rate, float gallons, SaltUnit unit) {
    const double grams = double{rate} * gallons;
    return narrow(unit == SaltUnit::grams ? grams : grams / grams_per_ounce);
}

bool Charges::are_balanced() const {
    return !(std::abs(cations - anions) > balanced_part * std::max(cations, anions));
}

Charges charges_of(const WaterRecord& water) {
    Charges charges;
    for (std::size_t i = 0; i < ions.size(); ++i)
        (i < cation_count ? charges.cations : charges.anions) +=
            water.*ions[i].ppm / ions[i].equivalent_weight;
    return charges;
}

} // namespace wortlex
