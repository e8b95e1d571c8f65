// The database of grains, extracts, sugars and other fermentables.
#pragma once

#include "databases/catalogue.h"

namespace wortlex {

/// `settings` must outlive the catalogue.
Catalogue<MaltRecord> malt_catalogue(const Settings& settings, const std::string& data_folder);

/// The entry dialog of a malt; see `MaltYields` for how its figures hang together.
void malt_entry_form(Form& form, MaltRecord& malt, const Settings& settings);

} // namespace wortlex
