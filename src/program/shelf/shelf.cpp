#include "program/shelf/shelf.h"

#include "base/number.h"
#include "brewing/calendar.h"
#include "documents/work/recipe_view.h"
#include "measures/unit_words.h"

#include <algorithm>
#include <compare>
#include <ctime>
#include <iterator>
#include <numeric>
#include <utility>

namespace wortlex {
namespace {

enum ShelfColumn : std::size_t { name_column, style_column, first_figure_column, date_column = 6 };

// In the order of the columns.
constexpr std::array column_figures = {ShelfFigure::og, ShelfFigure::ibu, ShelfFigure::colour,
                                       ShelfFigure::size};

ShelfFigure figure_in(std::size_t column) {
    return column_figures.at(column - first_figure_column);
}

std::weak_ordering compared(const ShelfEntry& left, const ShelfEntry& right, std::size_t column) {
    if (column == name_column) return left.name_words <=> right.name_words;
    if (column == style_column) return left.style_words <=> right.style_words;
    if (column == date_column) return left.modified <=> right.modified;
    return std::weak_order(left.figure(figure_in(column)), right.figure(figure_in(column)));
}

// On the brewer's calendar.
std::string date_of(std::int64_t seconds, DateFormat format) {
    const auto time = static_cast<std::time_t>(seconds);
    std::tm local = {};
    if (::localtime_r(&time, &local) == nullptr) return {};
    return short_date({local.tm_mday, local.tm_mon + 1, local.tm_year + 1900}, format);
}

} // namespace

// What cannot be opened stands at the end in either direction.
bool Shelf::comes_before(std::size_t left, std::size_t right) const {
    const auto &a = entries_[left], &b = entries_[right];
    if (a.can_be_opened != b.can_be_opened) return a.can_be_opened;
    if (const auto order = compared(a, b, column_); std::is_neq(order))
        return std::is_lt(order) != is_descending_;
    if (a.name_words != b.name_words) return a.name_words < b.name_words;
    return a.path < b.path;
}

void Shelf::add(std::vector<ShelfEntry> read) {
    if (read.empty()) return;
    const auto chosen =
        selected > 0 ? std::optional(shown_[static_cast<std::size_t>(selected)]) : std::nullopt;
    const auto before = entries_.size();
    std::move(read.begin(), read.end(), std::back_inserter(entries_));
    order_.resize(entries_.size());
    const auto first = order_.begin() + static_cast<std::ptrdiff_t>(before);
    std::iota(first, order_.end(), before);
    const auto sooner = [this](std::size_t left, std::size_t right) { return comes_before(left, right); };
    std::sort(first, order_.end(), sooner);
    std::inplace_merge(order_.begin(), first, order_.end(), sooner);
    show();
    if (chosen) select_again(*chosen);
}

void Shelf::find(std::string_view typed) {
    query_ = make_shelf_query(typed, names_);
    show();
}

void Shelf::click(std::size_t column) {
    // The newest first; of all else the least.
    is_descending_ = column == column_ ? !is_descending_ : column == date_column;
    column_ = column;
    const auto chosen =
        selected >= 0 ? std::optional(shown_[static_cast<std::size_t>(selected)]) : std::nullopt;
    std::sort(order_.begin(), order_.end(),
              [this](std::size_t left, std::size_t right) { return comes_before(left, right); });
    show();
    if (chosen) select_again(*chosen);
}

void Shelf::show() {
    shown_.clear();
    std::copy_if(order_.begin(), order_.end(), std::back_inserter(shown_),
                 [this](std::size_t entry) { return is_found(entries_[entry], query_); });
    selected = shown_.empty() ? -1 : 0;
}

void Shelf::select_again(std::size_t entry) {
    const auto place = std::find(shown_.begin(), shown_.end(), entry);
    if (place != shown_.end()) selected = static_cast<std::int32_t>(place - shown_.begin());
}

std::vector<ListColumn> Shelf::heads() const {
    return {{.caption = "Name", .width = 25},
            {.caption = "Style", .width = 22, .stretches = true},
            {.caption = "OG", .is_number = true, .width = 6},
            {.caption = "IBU", .is_number = true, .width = 5},
            {.caption = colour_unit(settings_).usual, .is_number = true, .width = 5},
            {.caption = size_label("Size", settings_), .is_number = true, .width = 7},
            {.caption = "Date", .width = 10}};
}

std::string Shelf::cell(std::size_t row, std::size_t column) const {
    const auto& entry = this->entry(row);
    if (column == name_column)
        return entry.can_be_opened && !entry.fault.empty() ? entry.name + " (incomplete)" : entry.name;
    if (column == date_column) return date_of(entry.modified, settings_.date_format);
    if (!entry.can_be_opened) return column == style_column ? "damaged" : "";
    if (column == style_column) return entry.style;
    const auto figure = figure_in(column);
    return fixed(entry.figure(figure), decimals_of(figure, settings_));
}

const ShelfEntry* Shelf::chosen() const {
    return selected < 0 ? nullptr : &entry(static_cast<std::size_t>(selected));
}

} // namespace wortlex
