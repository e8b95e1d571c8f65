// The yeast database.
#pragma once

#include "databases/catalogue.h"

namespace wortlex {

Catalogue<YeastRecord> yeast_catalogue(const Settings& settings, const std::string& data_folder);

/// The entry dialog of a yeast. Its temperature is typed in degrees F or C, whichever.
void yeast_entry_form(Form& form, YeastRecord& yeast);

/// As lists show them and sort by them.
std::string_view kind_word(YeastKind kind);
std::string_view medium_word(YeastMedium medium);

CataloguePages<YeastRecord> yeast_pages();

} // namespace wortlex
