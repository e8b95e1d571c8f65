// The file that remembers a list's order, and behind it entries to be put in that order.
#include "databases/catalogues.h"
#include "databases/import.h"
#include "databases/sorting.h"
#include "fuzz_input.h"

using namespace wortlex;

namespace {

template <class Record>
std::vector<Bytes> stored(const std::vector<Record>& records) {
    std::vector<Bytes> all;
    for (const auto& record : records) all.push_back(encoded(record, layout_of(record)));
    return all;
}

std::vector<Bytes> in_any_order(std::vector<Bytes> records) {
    std::sort(records.begin(), records.end());
    return records;
}

template <class Record>
void check(const Catalogue<Record>& catalogue, ByteView file) {
    const auto columns = catalogue.columns.size();
    const auto sort = read_sort(file, columns);
    promise(sort.column < columns && sort.descending.size() == columns);
    promise(read_sort(sort_bytes(sort), columns) == sort);

    auto records = transferred<Record>(file.subspan(std::min(columns + 1, file.size())));
    const auto before = stored(records);
    sort_by<Record>(records, catalogue, sort.column, sort.descending);
    const auto sorted = stored(records);
    sort_by<Record>(records, catalogue, sort.column, sort.descending);
    promise(stored(records) == sorted);
    promise(in_any_order(sorted) == in_any_order(before));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto file = fuzz_bytes(data, size);
    const auto program = default_program();
    check(style_catalogue(program.settings, "", StyleBook::bjcp), file);
    check(malt_catalogue(program.settings, ""), file);
    check(hop_catalogue(program.settings, ""), file);
    check(yeast_catalogue(program.settings, ""), file);
    check(water_catalogue(program.settings, "", {}), file);
    check(extra_catalogue(program.settings, ""), file);
    return 0;
}
