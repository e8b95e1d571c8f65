// The page of the water profile calculator.
#pragma once

#include "page/page.h"
#include "records/water/water_analysis.h"
#include "settings/settings.h"

namespace wortlex {

/// The body of the page, below its headers.
void print_water_match(PageContext& page, const WaterAnalysis& analysis);

PrintRequest water_match_printout(const WaterAnalysis& analysis, const Settings& settings);

} // namespace wortlex
