// The shelf: all recipes of a folder, those of them that are shown, and in which order.
#pragma once

#include "forms/rows.h"
#include "program/shelf/shelf_query.h"

#include <utility>

namespace wortlex {

class Shelf {
public:
    /// The settings must outlive it.
    Shelf(const Settings& settings, OtherNames names) : settings_(settings), names_(std::move(names)) {}

    /// Puts more recipes in their places. The selection stays with its recipe, or at the top.
    void add(std::vector<ShelfEntry> read);
    /// Shows what is found by this, and selects the first.
    void find(std::string_view typed);
    /// Sorts by a column, the other way round at every second click.
    void click(std::size_t column);
    SortMark sort_mark() const { return {column_, is_descending_}; }

    std::vector<ListColumn> heads() const;
    std::size_t count() const { return entries_.size(); }
    std::size_t shown_count() const { return shown_.size(); }
    const ShelfEntry& entry(std::size_t row) const { return entries_[shown_[row]]; }
    std::string cell(std::size_t row, std::size_t column) const;
    /// Null where nothing is shown.
    const ShelfEntry* chosen() const;

    std::int32_t selected = -1; ///< row; -1 for none

private:
    bool comes_before(std::size_t left, std::size_t right) const;
    void show();
    void select_again(std::size_t entry);

    const Settings& settings_;
    OtherNames names_;
    std::vector<ShelfEntry> entries_;
    std::vector<std::size_t> order_; ///< of all entries
    std::vector<std::size_t> shown_;
    ShelfQuery query_;
    std::size_t column_ = 0;
    bool is_descending_ = false;
};

} // namespace wortlex
