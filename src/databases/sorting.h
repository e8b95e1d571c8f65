// The order of a database list, which lives in the array itself, and the files that remember it.
#pragma once

#include "databases/catalogue.h"
#include "databases/sort_keys.h"

namespace wortlex {

/// Directions by column, 1 meaning that the next click sorts downwards, and the column sorted by last.
struct SortState {
    std::vector<std::uint8_t> descending;
    std::size_t column = 0;

    bool operator==(const SortState&) const = default;
};

/// A missing or short file, or a column that there is not, gives zeros.
SortState LoadSort(const std::string& path, std::size_t columns);
bool SaveSort(const std::string& path, const SortState& sort);

/// The same from and to the bytes of a file.
SortState read_sort(ByteView file, std::size_t columns);
Bytes sort_bytes(const SortState& sort);

namespace sorting {

template <class Record>
SortKeys keys_of(const CatalogueColumn<Record>& column, std::span<const Record> entries, bool descending) {
    SortKeys keys{.texts = {}, .numbers = {}, .descending = descending};
    if (const auto* const text = std::get_if<0>(&column.key))
        for (const auto& entry : entries) keys.texts.push_back(folded((*text)(entry)));
    else
        for (const auto& entry : entries) keys.numbers.push_back(std::get<1>(column.key)(entry));
    return keys;
}

} // namespace sorting

/// Sorts by the chain of a column, each key in the direction of its own column; equal entries keep their
/// order. Tells where each entry stood before.
template <class Record>
std::vector<std::size_t> sort_by(std::span<Record> entries, const Catalogue<Record>& catalogue,
                                 std::size_t column, const std::vector<std::uint8_t>& descending) {
    std::vector<SortKeys> chain;
    for (const auto key : catalogue.chains[column])
        chain.push_back(sorting::keys_of<Record>(catalogue.columns[key], entries, descending[key] != 0));
    std::vector<Record> sorted;
    sorted.reserve(entries.size());
    auto order = sorted_order(chain, entries.size());
    for (const auto place : order) sorted.push_back(entries[place]);
    std::copy(sorted.begin(), sorted.end(), entries.begin());
    return order;
}

/// The order of the files: by the first column, upwards.
template <class Record>
std::vector<std::size_t> sort_canonically(std::span<Record> entries, const Catalogue<Record>& catalogue) {
    return sort_by(entries, catalogue, 0, std::vector<std::uint8_t>(catalogue.columns.size(), 0));
}

} // namespace wortlex
