// What the colours and the spikes of a mash chart mean, below it.
#pragma once

#include "mash/mash_chart.h"

namespace wortlex {

void add_legend(MashChart& chart, const MashCourse& course, const MashChartOptions& options);

} // namespace wortlex
