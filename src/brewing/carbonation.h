// Carbonation of beer, in volumes of CO2. What beer keeps of its fermentation and what pressure holds are the
// usual fits of the solubility tables; a gallon takes 15.195 grams of corn sugar for a volume.
#pragma once

namespace wortlex {

/// Volumes that are still in beer fermented at a temperature (degrees F).
float residual_carbonation(float fahrenheit);

/// Grams of corn sugar that bring beer to a level; negative if it is there already.
float priming_grams(float gallons, float fahrenheit, float level);

/// The level that an amount of corn sugar brings beer to; 0 without beer.
float primed_level(float gallons, float fahrenheit, float grams);

/// Pressure (psi) that holds a level at a temperature (degrees F).
float carbonation_pressure(float fahrenheit, float level);

} // namespace wortlex
