// The linked figures of a malt: its potential, its yields by grind and basis, and its moisture. A change of
// one moves the others.
#pragma once

#include "records/ingredients/ingredients.h"

namespace wortlex {

/// Yields are percent. The grinds differ by as much as they did, whatever the potential becomes.
struct MaltYields {
    float potential = 0; ///< SG of a pound in a gallon
    float fine_dry = 0;  ///< of the potential, not as stored
    float difference = 0;
    float moisture = 0; ///< percent
};

MaltYields yields_of(const MaltRecord& malt);
/// Potential, moisture and both dry yields.
void store_yields(const MaltYields& yields, MaltRecord& malt);

float fine_as_is(const MaltYields& yields);
float coarse_dry(const MaltYields& yields);
float coarse_as_is(const MaltYields& yields);

/// Below 0 counts as 0; at or below 1 the yields are 0.
void set_potential(MaltYields& yields, float sg);
void set_fine_dry(MaltYields& yields, float percent);
void set_fine_as_is(MaltYields& yields, float percent);
void set_coarse_dry(MaltYields& yields, float percent);
void set_coarse_as_is(MaltYields& yields, float percent);

} // namespace wortlex
