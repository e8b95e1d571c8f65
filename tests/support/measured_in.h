// Settings that measure everything in one family of units.
#pragma once

#include "settings/system_settings.h"

namespace wortlex {

inline void measure_in(SystemSettings& image, Units units) {
    image.volume_units = image.weight_units = image.hop_weight_units = units;
    image.temperature_units = is_american(units) ? TemperatureUnits::fahrenheit : TemperatureUnits::celsius;
}

} // namespace wortlex
