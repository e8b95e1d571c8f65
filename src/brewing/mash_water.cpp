#include "brewing/mash_water.h"

#include "base/number.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr double grain_heat = 0.2;
constexpr double pounds_per_gallon = 8.3357;
constexpr double pounds_per_quart = 2.07;
constexpr double quarts_per_pound_of_grain = 0.315;

} // namespace

float TotalMashVolume(float grain, float water, float grain_water_volume) {
    if (grain == 0 || water == 0) return 0;
    const float ratio = narrow(double{water} / grain);
    const float gallons = narrow(grain * (grain_water_volume + (ratio - 1.0)) / 4.0);
    return std::max(gallons, 0.0F);
}

std::int32_t strike_without_tun(double wanted, double grain_temperature, float ratio) {
    return truncate(grain_heat / ratio * (wanted - grain_temperature) + wanted);
}

std::int32_t StrikeTemperature(std::int32_t wanted, std::int32_t grain_temperature, float ratio,
                               float thermal_mass) {
    if (!(ratio > 0)) return wanted;
    const auto strike = strike_without_tun(wanted, grain_temperature, ratio);
    if (thermal_mass == 0) return strike;
    return truncate(strike + 2 * (thermal_mass / 10.0 * strike));
}

float InfusionAmount(std::int32_t to, std::int32_t from, std::int32_t infusion, float water, float grain) {
    if (infusion == to) return 0;
    const double rise = static_cast<double>(to) - from, drop = static_cast<double>(infusion) - to;
    return std::max(narrow(rise * (grain * grain_heat + water) / drop), 0.0F);
}

float DecoctionVolume(std::int32_t from, std::int32_t to, const DecoctionMash& mash, std::int32_t returned,
                      float thickness) {
    const float water_pounds = narrow(mash.water_gallons * pounds_per_gallon);
    const float water_quarts = narrow(mash.water_gallons * 4.0);
    const bool whole = thickness == 0;
    const float ratio = !whole            ? thickness
                        : mash.grain != 0 ? narrow(double{water_quarts} / mash.grain)
                                          : 0.0F;
    const float grain_per_quart = narrow(1.0 / (ratio + quarts_per_pound_of_grain));
    const float water_per_quart = narrow(double{grain_per_quart} * ratio * pounds_per_quart);
    const float drop = narrow((static_cast<double>(returned) - from) *
                              (double{grain_per_quart} * mash.heat_capacity + water_per_quart));
    if (drop == 0) return 0;
    const double rise = static_cast<double>(to) - from;
    return narrow(rise * (double{mash.grain} * mash.heat_capacity + water_pounds) / drop);
}

std::int32_t default_first_rest(const SimpleMash& mash) {
    if (mash.mash_kind != MashKind::single_step) {
        for (const auto* rest : {&mash.acid, &mash.protein, &mash.intermediate}) {
            if (rest->is_present()) return rest->temperature;
        }
    }
    return mash.saccharification.is_present() ? mash.saccharification.temperature : 155;
}

} // namespace wortlex
