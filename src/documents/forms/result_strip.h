// What a recipe comes to, at one glance: how strong, how bitter, how dark, and whether it is within its
// style. Nothing of it is stored.
#pragma once

#include "documents/document_recalculation.h"

#include <array>
#include <optional>
#include <string>
#include <utility>

namespace wortlex {

/// From the least to the most; both alike where it is one value.
struct Stretch {
    double from = 0;
    double to = 0;

    bool operator==(const Stretch&) const = default;
};

struct StripCell {
    std::string name;            ///< "OG"
    std::string figure;          ///< "1.052", or "1.010 to 1.013"
    std::string note;            ///< what it rests on: "75 % assumed"
    std::string style;           ///< the range of the style, "1.045 to 1.060"; empty where it has none
    std::string word;            ///< "low" or "high" where all of it lies outside the style
    std::optional<Stretch> mark; ///< where it stands on its band, 0 to 1; none without a range

    bool operator==(const StripCell&) const = default;
};

/// Original and final gravity, alcohol by volume, bitterness, bitterness to gravity, colour: in the units of
/// the settings. The final gravity comes from the apparent attenuation of the yeast, and is a range where
/// that is one.
using ResultStrip = std::array<StripCell, 6>;
ResultStrip result_strip(const OpenDocument& open);

/// The style's range is the middle half of a band; what lies beyond the band stands at its end.
inline constexpr Stretch style_on_band = {0.25, 0.75};

/// A cell in a sentence, for those who cannot see the band.
std::string spoken(const StripCell& cell);

} // namespace wortlex
