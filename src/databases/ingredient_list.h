// A database list as its window sees it, whichever the database.
#pragma once

#include "base/ports/file_dialogs.h"
#include "base/ports/prompts.h"
#include "forms/form.h"
#include "page/page.h"
#include "records/ingredients/database_file.h"
#include "settings/settings.h"

namespace wortlex {

/// The list that keeps a database, and the list from which an entry is picked.
enum class ListSide { maintenance = 0, pick = 1 };

/// What a list stands on. The settings must outlive it; that of styles sets their book.
struct ListSource {
    ListSide side = ListSide::maintenance;
    Settings& settings;
    std::string data_folder; ///< ends in a slash
};

/// What a pick list starts with, and keeps for the next one when an entry was picked.
struct ListChoice {
    std::size_t filter = 0;
    bool only_in_stock = false;

    bool operator==(const ListChoice&) const = default;
};

/// A form on a copy of an entry. Accepting it stores the entry.
struct EntryForm {
    Form form;
    std::string_view dialog_template;
    std::size_t caption = 0;
};

class IngredientList {
public:
    virtual ~IngredientList() = default;

    /// Reads the file and the order of the last time, and selects the first row.
    virtual void open(Prompts& prompts) = 0;

    /// Their captions may change with the filter.
    virtual std::vector<ListColumn> heads() const = 0;
    virtual std::vector<std::string> filter_labels() const = 0; ///< empty: nothing to choose
    virtual bool has_stock() const = 0;
    virtual bool can_clone() const = 0;
    virtual std::string_view import_extension() const = 0;
    virtual std::string caption() const = 0;
    virtual std::string_view dialog_template() const = 0;

    virtual SortMark sort_mark() const = 0;

    virtual std::size_t shown_count() const = 0;
    virtual std::string cell(std::size_t row, std::size_t column) const = 0;

    /// The chosen filter and the selected row, -1 for none.
    std::int32_t filter = 0;
    bool only_in_stock = false;
    std::int32_t selected = -1;

    /// Builds the list anew for a filter, switch or click on a column's head.
    virtual void choose_filter(std::int32_t chosen, Prompts& prompts) = 0;
    virtual void show_only_in_stock(bool only) = 0;
    virtual void click(std::size_t column) = 0;

    /// Null where there is nothing to edit, or no room for more, which is told.
    virtual std::unique_ptr<EntryForm> new_entry(Prompts& prompts) = 0;
    virtual std::unique_ptr<EntryForm> edit_entry(Prompts& prompts) = 0;
    virtual std::unique_ptr<EntryForm> inventory(Prompts& prompts) = 0;
    virtual void clone_entry(Prompts& prompts) = 0;
    virtual void delete_entry(Prompts& prompts) = 0;
    virtual void import(Files& files, Prompts& prompts) = 0;
    /// The same from a file that is known.
    virtual void import_file(const std::string& path, Prompts& prompts) = 0;
    virtual void save(Prompts& prompts) = 0;
    /// How many entries differ from the file, for which nobody was asked; none of a pick list.
    virtual std::size_t unsaved_count() = 0;
    /// The file has been written elsewhere: takes the stocks that have changed there since it was read or
    /// written here, and keeps all other work. What was added to a stock meanwhile stays added.
    virtual void follow_stocks() = 0;
    /// The rows as they are shown.
    virtual PrintRequest printout() const = 0;
    /// Called with what is to be printed, a list or an entry; empty: their buttons are disabled.
    std::function<void(const PrintRequest&)> print;
    /// Asks about changes and keeps the order for the next time. False: the list stays open.
    virtual bool close(Prompts& prompts) = 0;
};

template <class Record>
class RecordList : public IngredientList {
public:
    /// The entry that the selected row means: the first one that reads the same. Nothing without a selection.
    virtual std::optional<Record> selected_record() const = 0;
};

/// Makes a list on a database, which a maintenance list edits; a pick list is given one of its own. The
/// database must outlive the list.
template <class Record>
using ListMaker = std::unique_ptr<RecordList<Record>> (*)(const ListSource& source,
                                                          Database<Record>& database);

} // namespace wortlex
