// What is worked out from a document and not saved with it.
#pragma once

#include "brewing/beer_colour.h"
#include "brewing/mash_recalculation.h"

#include <vector>

namespace wortlex {

/// What one malt line gives at batch size.
struct LineFigures {
    double line_sg = 1;      ///< that the line alone would give
    double line_extract = 0; ///< pounds
    double line_value = 0;   ///< its summand, in points x gallons or in pounds of extract
};

struct RecipeFigures {
    std::vector<LineFigures> lines; ///< one a malt line
    double total_value = 0;
    double total_extract_pounds = 0;
    double recipe_sucrose = 0; ///< points of a pound per gallon, as in force for this recipe
    float tinseth_points = 0;  ///< of the boil that the Tinseth formula reads
    float total_grain = 0;     ///< pounds of every line
    float mash_grain = 0;      ///< pounds of mashed lines
    float total_hop_ounces = 0;
    BeerColour colour;
    MashWater mash;
};

} // namespace wortlex
