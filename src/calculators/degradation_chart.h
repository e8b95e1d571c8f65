// The chart of a hop's alpha over its months in store.
#pragma once

#include "base/ports/surface.h"
#include "calculators/hop_degradation.h"

namespace wortlex {

/// What the chart takes, in pixels; the header that stands above it when it is printed or saved adds to it.
Extent degradation_chart_size(bool with_header);

/// What the chart tells, for those who do not see it.
std::string words_of_degradation_chart(const HopDegradation& hop);

/// Draws into the top left corner of `surface`, on white.
void draw_degradation_chart(Surface& surface, const HopDegradation& hop, bool with_header);

} // namespace wortlex
