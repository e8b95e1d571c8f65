#include "brewing/evaporation.h"

#include "base/number.h"

namespace wortlex {
namespace {

constexpr double minutes_per_hour = 60.0;

float not_below_zero(double value) {
    return value < 0 ? 0 : narrow(value);
}

} // namespace

EvaporationRate evaporation_rate(float start_volume, float final_volume, std::int32_t minutes) {
    const float hourly = narrow(minutes_per_hour / minutes);
    const double lost = double{start_volume} - final_volume;
    return {not_below_zero(lost / start_volume * hourly * 100), not_below_zero(lost * hourly)};
}

float evaporated_by_percent(float volume, float percent_per_hour, std::int32_t minutes) {
    return narrow(minutes / minutes_per_hour * (percent_per_hour / 100.0 * volume));
}

float evaporated_by_volume(float volume_per_hour, std::int32_t minutes) {
    return narrow(minutes / minutes_per_hour * volume_per_hour);
}

} // namespace wortlex
