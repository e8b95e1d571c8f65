// The yeast database.
#pragma once

#include "databases/ingredient_list.h"

namespace wortlex {

std::unique_ptr<RecordList<YeastRecord>> yeast_list(const ListSource& source, Database<YeastRecord>& yeasts);

/// The entry dialog of a yeast. Its temperature is typed in degrees F or C, whichever.
void yeast_entry_form(Form& form, YeastRecord& yeast);

/// As lists show them and sort by them.
std::string_view kind_word(YeastKind kind);
std::string_view medium_word(YeastMedium medium);
std::string_view flocculation_word(Flocculation flocculation);

} // namespace wortlex
