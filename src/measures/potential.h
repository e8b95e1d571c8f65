// Extract potentials and contributions in the form that the user has chosen to see them.
#pragma once

#include "settings/settings.h"

namespace wortlex {

/// What the display of a malt's potential depends on besides its SG.
struct PotentialTraits {
    float moisture = 0;     ///< percent
    float coarse_yield = 0; ///< percent, dry basis
    bool mashed = false;    ///< only then do grind and moisture count
};

/// A dry basis fine grind yield (percent) as the grind and moisture of `type` leave it. Only mashed
/// lines are touched. A coarse yield is not narrowed.
double yield_by_type(float fine_yield, const PotentialTraits& traits, YieldType type);

/// The potential of a malt (SG of a pound in a gallon) as SG, points, HWE, Plato or percent yield.
float potential_to_shown(float sg, const PotentialTraits& traits, const Settings& settings);
float potential_from_shown(float shown, const PotentialTraits& traits, const Settings& settings);

/// The same where there is no malt line to ask: percent yield reads as SG.
float potential_to_shown_plain(float sg, PotentialDisplay display);
float potential_from_shown_plain(float shown, PotentialDisplay display);

/// The recipe of which a line's extract is a part.
struct ExtractTotals {
    float og_points = 0;
    double extract_pounds = 0;
};

/// What a line gives to the recipe, as SG, points, weight, Plato or percent of the total. Plato apportions
/// the whole by gravity, not by weight.
float extract_to_shown(float line_sg, float line_extract_pounds, const ExtractTotals& totals,
                       const Settings& settings);
float extract_to_shown(float line_sg, float line_extract_pounds, const ExtractTotals& totals,
                       const Settings& settings, ExtractDisplay display);

} // namespace wortlex
