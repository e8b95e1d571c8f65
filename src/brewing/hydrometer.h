// The temperature correction of hydrometers, a third-order fit of the density of wort against temperature as
// brewing handbooks print it.
#pragma once

namespace wortlex {

/// What a hydrometer reads too low at a temperature (degrees F), in points; its zero lies near 59 F. A tool
/// works it out for the calibration once.
float hydrometer_error(float fahrenheit);

/// A reading (SG) taken at `fahrenheit` as the instrument would give it at its calibration temperature, whose
/// error is given.
float corrected_gravity(float sg, float fahrenheit, float calibration_error);

} // namespace wortlex
