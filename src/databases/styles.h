// The database of beer styles: two published sets of guidelines, one in use at a time.
#pragma once

#include "databases/store.h"

namespace wortlex {

Catalogue<StyleRecord> style_catalogue(const Settings& settings, const std::string& data_folder,
                                       StyleBook book);

/// The entry dialog of a style.
void style_entry_form(Form& form, StyleRecord& style, const Settings& settings);

CataloguePages<StyleRecord> style_pages(const Settings& settings, StyleBook book);

/// "01-A", or "01-?" without a letter, UTF-8; and the type as lists show it.
std::string style_number(const StyleRecord& style);
std::string style_type_word(const StyleRecord& style);

/// The filters are the two sets. Keeping the database switches the set in force; a pick list reads the other
/// one into its own array only, and who takes the picked style sets `Settings::style_book` to `book()`.
class StyleStore : public Store<StyleRecord> {
public:
    /// Begins with the set in force. `settings` must outlive the store.
    StyleStore(Settings& settings, ListSide side, const std::string& data_folder,
               Database<StyleRecord>& database);

    StyleBook book() const { return book_; }

    /// With the set that `filter` names.
    void open(Prompts& prompts) override;
    /// Asks about changes in the set that is left. The columns' heads may change too.
    void choose_filter(std::int32_t chosen, Prompts& prompts) override;
    void save(Prompts& prompts) override;

private:
    void take(StyleBook book);

    Settings& settings_;
    StyleBook book_;
};

} // namespace wortlex
