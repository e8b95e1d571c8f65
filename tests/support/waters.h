// Waters by their six ions, in the order of `ions`.
#pragma once

#include "brewing/salts.h"

namespace wortlex {

using SixIons = std::array<float, ions.size()>; ///< ppm

inline WaterRecord water_of(const SixIons& ppm, std::string_view name = "") {
    WaterRecord water;
    water.name.assign(name);
    for (std::size_t i = 0; i < ions.size(); ++i) water.*ions[i].ppm = ppm[i];
    return water;
}

} // namespace wortlex
