#include "documents/forms/amount_row.h"

#include "base/number.h"

#include <utility>

namespace wortlex {

NumberRow& amount_row(Rows& rows, std::string key, float& stored, const WeightUnit& unit) {
    const double per_stored = unit.per_stored;
    return rows.number(std::move(key), stored)
        .label(unit.label)
        .shown_as([per_stored](float value) { return narrow(value * per_stored); },
                  [per_stored](float shown) { return narrow(shown / per_stored); })
        .range(0.0F, unit.highest)
        .step(unit.step)
        .format(unit.format)
        .outside(Outside::clamp);
}

} // namespace wortlex
