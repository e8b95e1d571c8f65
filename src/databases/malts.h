// The database of grains, extracts, sugars and other fermentables.
#pragma once

#include "databases/catalogue.h"

namespace wortlex {

/// `settings` must outlive the catalogue.
Catalogue<MaltRecord> malt_catalogue(const Settings& settings, const std::string& data_folder);

/// The entry dialog of a malt; see `MaltYields` for how its figures hang together.
void malt_entry_form(Form& form, MaltRecord& malt, const Settings& settings);

CataloguePages<MaltRecord> malt_pages(const Settings& settings);

/// As lists show it, in the form that the settings ask for.
std::string potential_cell(const MaltRecord& malt, const Settings& settings);

} // namespace wortlex
