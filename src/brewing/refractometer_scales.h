// The three scales of refractometers (Brix, Zeiss, refractive index) and the extract of unfermented wort.
// The polynomials between them are the usual fits of the tables for sugar solutions at 20 degrees C.
//
// Instruments differ by what they read in pure water; the settings hold that for each scale. A net reading
// is one without it. What no instrument can read (far below water on the Zeiss scale) gives figures that are
// no numbers.
#pragma once

#include "settings/settings.h"

namespace wortlex {

/// The same reading on the three scales.
struct RefractometerReading {
    float brix = 0;
    float zeiss = 0;
    float ri = 0;

    bool operator==(const RefractometerReading&) const = default;
};

/// All three from the one that was read, which stays as it is.
RefractometerReading reading_of_brix(float brix, const Settings& settings);
RefractometerReading reading_of_zeiss(float zeiss, const Settings& settings);
RefractometerReading reading_of_ri(float ri, const Settings& settings);

/// Brix of a refractive index, for a tool whose calibration has changed: what counts as water begins a little
/// higher than where an index is typed.
float recalibrated_brix(float ri, const Settings& settings);

/// Below water Brix and Zeiss are 0.
RefractometerReading net_reading(const RefractometerReading& reading, const Settings& settings);
/// Net Zeiss of a Brix reading.
float net_zeiss_from_brix(float brix, const Settings& settings);

/// Degrees Plato of unfermented wort, by the Brix correction factor; a factor of 0 gives 0.
float plato_from_brix(float brix, const Settings& settings);
float brix_from_plato(float plato, const Settings& settings);

} // namespace wortlex
