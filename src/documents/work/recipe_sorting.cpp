#include "databases/sort_keys.h"
#include "documents/work/recipe_lines.h"

#include <span>

namespace wortlex {
namespace {

constexpr float minutes_per_day = 1440;

SortKeys texts(std::size_t count, const std::function<std::string(std::size_t)>& text) {
    SortKeys keys;
    for (std::size_t line = 0; line < count; ++line) keys.texts.push_back(folded(text(line)));
    return keys;
}

SortKeys numbers(std::size_t count, const std::function<float(std::size_t)>& number) {
    SortKeys keys;
    for (std::size_t line = 0; line < count; ++line) keys.numbers.push_back(number(line));
    return keys;
}

std::vector<SortKeys> malt_keys(const RecipeEditor& editor) {
    const auto& malts = editor.open.document.malts;
    const auto amount = [&](std::size_t line) { return malts[line].amount; };
    return {texts(malts.size(), [&](auto line) { return std::string(malts[line].record.name.view()); }),
            texts(malts.size(), [&](auto line) { return std::string(malts[line].record.origin.view()); }),
            numbers(malts.size(), [&](auto line) { return malt_value(editor.open, editor.view, line); }),
            numbers(malts.size(), [&](auto line) { return malts[line].record.colour; }),
            numbers(malts.size(), amount),
            numbers(malts.size(), amount)};
}

std::vector<SortKeys> hop_keys(const RecipeEditor& editor) {
    const auto& hops = editor.open.document.hops;
    return {texts(hops.size(), [&](auto line) { return std::string(hops[line].record.name.view()); }),
            texts(hops.size(), [&](auto line) { return hop_cell(editor.open, editor.view, line, 1); }),
            numbers(hops.size(), [&](auto line) { return hops[line].alpha; }),
            numbers(hops.size(),
                    [&](auto line) { return hop_bitterness(hops[line], editor.view, editor.open.settings); }),
            numbers(hops.size(), [&](auto line) { return hops[line].amount; }),
            numbers(hops.size(), [&](auto line) { return static_cast<float>(hops[line].boil_time); })};
}

float minutes_of(const ExtraRecord& extra) {
    const auto time = static_cast<float>(extra.time);
    return extra.time_unit == TimeUnit::days ? time * minutes_per_day : time;
}

std::vector<SortKeys> extra_keys(const RecipeEditor& editor) {
    const auto& extras = editor.open.document.extras;
    return {texts(extras.size(), [&](auto line) { return std::string(extras[line].record.name.view()); }),
            texts(extras.size(), [&](auto line) { return extra_cell(extras[line], 1); }),
            numbers(extras.size(), [&](auto line) { return minutes_of(extras[line].record); }),
            numbers(extras.size(), [&](auto line) { return extras[line].amount; })};
}

// The clicked column's key first, then the others from left to right and upwards.
std::vector<SortKeys> chain_of(std::vector<SortKeys> keys, std::size_t column, bool descending) {
    keys[column].descending = descending;
    std::rotate(keys.begin(), keys.begin() + static_cast<std::ptrdiff_t>(column),
                keys.begin() + static_cast<std::ptrdiff_t>(column) + 1);
    return keys;
}

template <class Entry>
void arrange(std::vector<Entry>& entries, const std::vector<std::size_t>& order) {
    if (entries.size() != order.size()) return;
    std::vector<Entry> arranged;
    arranged.reserve(entries.size());
    for (const auto place : order) arranged.push_back(std::move(entries[place]));
    entries = std::move(arranged);
}

// The order of the lines, and the selection and the directions after the click.
std::vector<std::size_t> clicked(std::vector<SortKeys> keys, std::size_t count, std::size_t column,
                                 std::span<bool> descending, std::int32_t& selected) {
    const bool downwards = descending[column];
    std::fill(descending.begin(), descending.end(), false);
    descending[column] = !downwards;
    auto order = sorted_order(chain_of(std::move(keys), column, downwards), count);
    for (std::size_t place = 0; place < order.size(); ++place)
        if (selected >= 0 && order[place] == static_cast<std::size_t>(selected)) {
            selected = static_cast<std::int32_t>(place);
            break;
        }
    return order;
}

} // namespace

void sort_malts(RecipeEditor& editor, std::size_t column) {
    auto& malts = editor.open.document.malts;
    if (malts.size() < 2) return;
    edit(editor, "Sort Malts", [&] {
        const auto order = clicked(malt_keys(editor), malts.size(), column, editor.view.malts_descending,
                                   editor.view.selected_malt);
        arrange(malts, order);
        arrange(editor.open.figures.lines, order);
    });
}

void sort_hops(RecipeEditor& editor, std::size_t column) {
    auto& hops = editor.open.document.hops;
    if (hops.size() < 2) return;
    edit(editor, "Sort Hops", [&] {
        arrange(hops, clicked(hop_keys(editor), hops.size(), column, editor.view.hops_descending,
                              editor.view.selected_hop));
    });
}

void sort_extras(RecipeEditor& editor, std::size_t column) {
    auto& extras = editor.open.document.extras;
    if (extras.size() < 2) return;
    arrange(extras, clicked(extra_keys(editor), extras.size(), column, editor.view.extras_descending,
                            editor.view.selected_extra));
    tell_change(editor);
}

} // namespace wortlex
