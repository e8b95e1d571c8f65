// The database of extra ingredients: spices, herbs, fruits, coffee, finings and what else there is.
#pragma once

#include "databases/catalogue.h"

namespace wortlex {

Catalogue<ExtraRecord> extra_catalogue(const Settings& settings, const std::string& data_folder);

/// The entry dialog of an extra.
void extra_entry_form(Form& form, ExtraRecord& extra);

CataloguePages<ExtraRecord> extra_pages();

/// As lists show it and sort by it.
std::string_view type_word(ExtraType type);

} // namespace wortlex
