// The database of waters. It keeps no stock, and has no kinds to choose from.
#pragma once

#include "databases/ingredient_list.h"

namespace wortlex {

/// Opens the converters of the entry dialog, each on the water that is being entered; see water_hardness.h.
/// One that is empty leaves its button disabled.
struct WaterConverters {
    std::function<void(WaterRecord&)> calcium;
    std::function<void(WaterRecord&)> magnesium;
    std::function<void(WaterRecord&)> alkalinity;
};

/// `converters` serve the entry dialog; a pick needs none.
std::unique_ptr<RecordList<WaterRecord>> water_list(const ListSource& source, Database<WaterRecord>& waters);
std::unique_ptr<RecordList<WaterRecord>> water_list(const ListSource& source, Database<WaterRecord>& waters,
                                                    const WaterConverters& converters);

/// The entry dialog of a water.
void water_entry_form(Form& form, WaterRecord& water, const WaterConverters& converters);

} // namespace wortlex
