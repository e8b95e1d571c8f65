// How many decimals of a gravity are shown, by the settings.
#pragma once

#include "settings/system_settings.h"

#include <algorithm>

namespace wortlex {

/// 0 to 2, whatever a settings file holds.
inline int more_decimals(std::uint32_t precision) {
    return static_cast<int>(std::min(precision, 2U));
}

/// Three to five.
inline int sg_decimals(const SystemSettings& settings) {
    return 3 + more_decimals(settings.sg_precision);
}

/// One to three; also of points and HWE.
inline int plato_decimals(const SystemSettings& settings) {
    return 1 + more_decimals(settings.plato_precision);
}

} // namespace wortlex
