// The database of extra ingredients: spices, herbs, fruits, coffee, finings and what else there is.
#pragma once

#include "databases/ingredient_list.h"

namespace wortlex {

std::unique_ptr<RecordList<ExtraRecord>> extra_list(const ListSource& source, Database<ExtraRecord>& extras);

/// The entry dialog of an extra.
void extra_entry_form(Form& form, ExtraRecord& extra);

/// As lists show it and sort by it.
std::string_view type_word(ExtraType type);

} // namespace wortlex
