// What the hop calculators remember from one opening to the next, while the program runs.
#pragma once

#include "records/documents/lines.h"

namespace wortlex {

struct HopMemory {
    float wort_volume = 0; ///< gallons, as is the batch; 0: not set yet
    float batch_volume = 0;
    float sg = 1.04F;
    int boil_minutes = 60;
    bool is_first_wort = false;
    bool is_mash_hop = false;
    bool bag_used = false;
    bool beer_filtered = false;

    std::int16_t age_months = 0; ///< below 1: not set yet, as are then the next two at 0
    float storage_temperature = 0;
    StorageKind storage_kind{};

    bool operator==(const HopMemory&) const = default;
};

} // namespace wortlex
