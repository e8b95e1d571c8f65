// A weight of a line as one of the two fields that show it, each in a unit of its own. The fields stay in
// step because both show the one stored value.
#pragma once

#include "forms/form.h"

#include <string>

namespace wortlex {

struct WeightUnit {
    std::string label;
    double per_stored = 1; ///< of this unit in one of the stored unit
    float highest = 0;     ///< in this unit, as the step
    float step = 0;
    const char* format = "%0.2f";
};

/// A field for `stored` in `unit`, brought back into its range.
NumberRow& amount_row(Rows& rows, std::string key, float& stored, const WeightUnit& unit);

} // namespace wortlex
