// The chart of a hop's alpha over its months in store, on paper.
#pragma once

#include "calculators/degradation_chart.h"
#include "page/page.h"

namespace wortlex {

/// The chart with its header, alone on its page.
PrintRequest degradation_printout(const HopDegradation& hop, float printer_scale);

} // namespace wortlex
