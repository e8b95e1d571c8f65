// The database of grains, extracts, sugars and other fermentables.
#pragma once

#include "databases/ingredient_list.h"

namespace wortlex {

std::unique_ptr<RecordList<MaltRecord>> malt_list(const ListSource& source, Database<MaltRecord>& malts);

/// The entry dialog of a malt; see `MaltYields` for how its figures hang together.
void malt_entry_form(Form& form, MaltRecord& malt, const Settings& settings);

/// As lists show it, in the form that the settings ask for.
std::string potential_cell(const MaltRecord& malt, const Settings& settings);

} // namespace wortlex
