// A slim band that shows where a figure stands in the range of a style.
#pragma once

#include "base/ports/surface.h"

#include <optional>

namespace wortlex {

struct StyleBand {
    float low = 0;
    float high = 0;
    float value = 0;
};

/// Where the value stands on a scale on which the style's range is the middle half, 0 to 1; beyond the scale
/// it stands at the end. Nothing without a range.
std::optional<double> place_on_band(const StyleBand& band);

bool is_in_style(const StyleBand& band);

/// Fills the surface: the scale, the range on it, the value as a mark, which is red outside the range.
void draw_style_band(Surface& surface, const StyleBand& band);

} // namespace wortlex
