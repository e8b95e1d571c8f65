#include "records/mash/schedules.h"

#include "base/number.h"

#include <algorithm>

namespace wortlex {
namespace {

std::size_t usable_count(const ComplexMash& mash) {
    return static_cast<std::size_t>(
        std::clamp(mash.step_count, 0, static_cast<std::int32_t>(mash_step_slots)));
}

} // namespace

std::span<MashStep> ComplexMash::used_steps() {
    return std::span(steps).first(usable_count(*this));
}

std::span<const MashStep> ComplexMash::used_steps() const {
    return std::span(steps).first(usable_count(*this));
}

ComplexMash ResetComplexMash(const Settings& settings) {
    ComplexMash mash;
    mash.grain_temperature = truncate(settings.grain_temperature);
    return mash;
}

MashDesign new_mash_design(const Settings& settings) {
    const float size = is_pro(settings) ? 1200.0F : 10.0F;
    MashDesign design{ResetComplexMash(settings), size, size};
    design.mash.tun_thermal_mass = settings.tun_thermal_mass;
    return design;
}

} // namespace wortlex
