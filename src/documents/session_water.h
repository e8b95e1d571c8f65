// The water of a session's brewer, matched to that of its recipe.
#pragma once

#include "documents/document_recalculation.h"
#include "records/water/water_analysis.h"

namespace wortlex {

/// What the session holds of it, with what follows from that worked out. Quantities are in ounces, and of an
/// extract recipe for no water.
WaterAnalysis water_analysis_of(const BrewDocument& document, const SessionDocument& session);

} // namespace wortlex
