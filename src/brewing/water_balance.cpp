#include "brewing/water_balance.h"

#include "base/number.h"
#include "brewing/mash_recalculation.h"
#include "measures/units.h"

namespace wortlex {
namespace {

constexpr double fluid_ounces_per_gallon = 128.0;

double kilograms_of_grain(const WaterNeeds& needs) {
    return needs.grain * grams_per_pound / 1000.0;
}

float evaporated(const WaterNeeds& needs, float into_kettle, const Settings& settings) {
    const double hours = needs.boil_minutes / 60.0;
    if (settings.evaporation_by_volume != 0) return narrow(needs.evaporation_rate * hours);
    return narrow(into_kettle * (needs.evaporation_rate / 100.0 * hours));
}

double infusions_by_rest(const SimpleMash& mash, const InfusionExtras& infusions) {
    double quarts = 0;
    const auto add = [&quarts](const Rest& rest, const Infusion& infusion) {
        if (rest.is_present()) quarts += infusion.amount;
    };
    if (mash.mash_kind != MashKind::single_step) {
        add(mash.protein, infusions.protein);
        add(mash.intermediate, infusions.intermediate);
        add(mash.saccharification, infusions.saccharification);
    }
    add(mash.mash_out, infusions.mash_out);
    return quarts;
}

} // namespace

WaterBalance BalanceWater(WaterNeeds& needs, bool has_mash, const Settings& settings) {
    WaterBalance balance;
    if (has_mash) {
        balance.needed = narrow(double{needs.sparge} + needs.mash_water + needs.top_up);
        needs.total_into_mash = narrow(double{needs.sparge} - needs.sparge_deadspace);
        needs.grain_absorption = narrow(double{settings.grain_absorption} * needs.grain);
        balance.from_mash = narrow(double{needs.mash_water} - needs.grain_absorption);
        balance.into_kettle =
            narrow(double{balance.from_mash} + needs.total_into_mash + needs.top_up - needs.lauter_loss);
    } else {
        balance.needed = balance.into_kettle = needs.top_up;
    }
    balance.after_boil =
        narrow(double{balance.into_kettle} - evaporated(needs, balance.into_kettle, settings));
    balance.to_chillers = narrow(double{balance.after_boil} - vessel_losses(needs));
    balance.after_cooling =
        narrow(balance.to_chillers - double{balance.to_chillers} * settings.cooling_shrink);
    return balance;
}

float mash_gallons(const MashedGrain& mash) {
    if (mash.is_complex) return narrow(infused_water(mash.complex) / 4.0);
    const float dough_in = narrow(mash.simple.dough_in_water / 4.0);
    if (mash.infusions.heat_type != SimpleHeat::infusion) return dough_in;
    return narrow(dough_in + infusions_by_rest(mash.simple, mash.infusions) / 4.0);
}

void seed_water_needs(WaterNeeds& needs, const MashedGrain& mash, std::int32_t boil_minutes) {
    needs.grain = mash.grain;
    needs.mash_water = mash_gallons(mash);
    if (needs.grain != 0) needs.quarts_per_pound = narrow(needs.mash_water * 4.0 / needs.grain);
    needs.boil_minutes = static_cast<float>(boil_minutes);
}

void enter_grain(WaterNeeds& needs, float pounds) {
    needs.grain = pounds;
    needs.mash_water = narrow(double{needs.quarts_per_pound} * pounds / 4.0);
}

void enter_water_ratio(WaterNeeds& needs, float ratio, Units units) {
    needs.quarts_per_pound = ratio;
    needs.mash_water =
        is_american(units)
            ? narrow(double{ratio} * needs.grain / 4.0)
            : narrow(kilograms_of_grain(needs) * ratio * fluid_ounces_per_litre / fluid_ounces_per_gallon);
}

void enter_mash_water(WaterNeeds& needs, float gallons) {
    needs.mash_water = gallons;
    needs.quarts_per_pound = needs.grain != 0 ? narrow(gallons * 4.0 / needs.grain) : 0.0F;
}

float shown_water_ratio(const WaterNeeds& needs, Units units) {
    if (is_american(units) || needs.grain == 0) return needs.quarts_per_pound;
    return narrow(needs.mash_water * litres_per_gallon / kilograms_of_grain(needs));
}

float vessel_losses(const WaterNeeds& needs) {
    return narrow(double{needs.kettle_deadspace} + needs.hopback + needs.chiller + needs.other);
}

} // namespace wortlex
