#include "calculators/boil_off_calculator.h"

#include "base/files.h"
#include "base/number.h"
#include "brewing/dilution.h"
#include "calculators/state_file.h"
#include "measures/units.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::string_view boil_off_file = "boil.wxs";

constexpr auto boil_off_layout = layout<BoilOffCalculator, 29>(
    at(0, via(&BoilOffCalculator::wort, &TwinGallons::gallons)),
    at(4, via(&BoilOffCalculator::gravity, &TwinGravity::sg)),
    at(8, via(&BoilOffCalculator::evaporated, &TwinGallons::gallons)), at(12, &BoilOffCalculator::minutes),
    at(16, via(&BoilOffCalculator::rate_start, &TwinGallons::gallons)),
    at(20, via(&BoilOffCalculator::rate_final, &TwinGallons::gallons)),
    at(24, &BoilOffCalculator::rate_minutes), at(28, &BoilOffCalculator::method));

float evaporated_gallons(const BoilOffCalculator& calculator) {
    const auto rate = rate_of(calculator);
    if (calculator.method == BoilOffMethod::percent_per_hour)
        return evaporated_by_percent(calculator.wort.gallons, rate.percent_per_hour, calculator.minutes);
    return evaporated_by_volume(rate.volume_per_hour, calculator.minutes);
}

float what_is_left(float volume, float gone) {
    const float left = narrow(double{volume} - gone);
    return left < 0 ? 0 : left;
}

void hold_to(TwinGallons& volume, const TwinGallons& most) {
    if (volume.gallons > most.gallons) volume = most;
}

} // namespace

EvaporationRate rate_of(const BoilOffCalculator& calculator) {
    return evaporation_rate(calculator.rate_start.gallons, calculator.rate_final.gallons,
                            calculator.rate_minutes);
}

TwinGallons evaporated_amount(const BoilOffCalculator& calculator) {
    if (calculator.method == BoilOffMethod::free_entry) return calculator.evaporated;
    const float gallons = evaporated_gallons(calculator);
    return {gallons, narrow(gallons * litres_per_gallon)};
}

TwinGallons volume_after_boil(const BoilOffCalculator& calculator) {
    const auto gone = evaporated_amount(calculator);
    return {what_is_left(calculator.wort.gallons, gone.gallons),
            what_is_left(calculator.wort.litres, gone.litres)};
}

TwinGravity gravity_after_boil(const BoilOffCalculator& calculator) {
    const float gone = evaporated_amount(calculator).gallons;
    if (!std::isfinite(gone)) return {gone, gone};
    // More than there is leaves nothing to be measured.
    if (gone >= calculator.wort.gallons && gone > 0) return {0, 0};
    const float sg = diluted_gravity(calculator.gravity.sg, calculator.wort.gallons, -gone);
    return sg < 1 ? TwinGravity{0, 0} : of_sg(sg);
}

void settle_boil_off(BoilOffCalculator& calculator) {
    hold_to(calculator.rate_final, calculator.rate_start);
    const auto gone = evaporated_amount(calculator);
    if (std::isfinite(gone.gallons)) calculator.evaporated = gone;
    if (calculator.method == BoilOffMethod::free_entry) hold_to(calculator.evaporated, calculator.wort);
}

bool read_boil_off(ByteView file, BoilOffCalculator& calculator) {
    const auto numbers = [](const BoilOffCalculator& read) {
        return std::array{read.wort.gallons, read.gravity.sg, read.evaporated.gallons,
                          read.rate_start.gallons, read.rate_final.gallons};
    };
    if (!read_state(file, calculator, boil_off_layout, numbers)) return false;
    calculator.wort = of_gallons(calculator.wort.gallons);
    calculator.gravity = of_sg(calculator.gravity.sg);
    calculator.evaporated = of_gallons(calculator.evaporated.gallons);
    calculator.rate_start = of_gallons(calculator.rate_start.gallons);
    calculator.rate_final = of_gallons(calculator.rate_final.gallons);
    calculator.minutes = std::max(calculator.minutes, 0);
    calculator.rate_minutes = std::max(calculator.rate_minutes, 1);
    if (calculator.method > BoilOffMethod::free_entry) calculator.method = BoilOffMethod::percent_per_hour;
    settle_boil_off(calculator);
    return true;
}

Bytes boil_off_bytes(const BoilOffCalculator& calculator) {
    return encoded(calculator, boil_off_layout);
}

void LoadBoilOff(const std::string& data_folder, BoilOffCalculator& calculator) {
    if (const auto file = read_file(find_data_file(data_folder, boil_off_file)))
        read_boil_off(*file, calculator);
}

bool SaveBoilOff(const std::string& data_folder, const BoilOffCalculator& calculator, Prompts& prompts) {
    return save_or_tell(find_data_file(data_folder, boil_off_file), boil_off_bytes(calculator), prompts);
}

} // namespace wortlex
