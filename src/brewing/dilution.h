// The gravity of wort that is thinned with water, boiled down or blended, by its mass and the extract in it.
// Volumes are gallons.
#pragma once

namespace wortlex {

/// SG of wort with water added to it; a negative amount is boiled away. Without wort and water it is `sg`.
float diluted_gravity(float sg, float gallons, float water_gallons);

struct WortPart {
    float gallons = 0;
    float sg = 1;
};

/// SG of two worts blended; that of water if nothing comes together.
float blended_gravity(const WortPart& first, const WortPart& second);

} // namespace wortlex
