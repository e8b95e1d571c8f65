// The database of beer styles: two published sets of guidelines, one in use at a time.
#pragma once

#include "databases/ingredient_list.h"

namespace wortlex {

/// The filters are the two sets, and a selected record bears the book of its own. Keeping the database
/// switches the set in force; a pick list reads the other one into its own array only, and who takes the
/// picked style sets `Settings::style_book`.
std::unique_ptr<RecordList<StyleRecord>> style_list(const ListSource& source, Database<StyleRecord>& styles);

/// "AHA" or "BJCP".
std::string style_book_name(StyleBook book);

/// The entry dialog of a style.
void style_entry_form(Form& form, StyleRecord& style, const Settings& settings);

/// "01-A", or "01-?" without a letter, UTF-8; and the type as lists show it.
std::string style_number(const StyleRecord& style);
std::string_view style_type_word(const StyleRecord& style);

} // namespace wortlex
