// The water of a session's brewer, matched to that of its recipe.
#pragma once

#include "documents/document_recalculation.h"
#include "records/water/water_analysis.h"

namespace wortlex {

/// What an open session holds of it, with what follows from that worked out. The water to be matched is that
/// of the recipe, the volumes are those of the water needs, and none of an extract recipe.
WaterAnalysis water_analysis_of(const OpenDocument& open);

/// Puts back what the session itself holds: neither the water to be matched nor the volumes.
void keep_water_analysis(const WaterAnalysis& analysis, const OpenDocument& open);

} // namespace wortlex
