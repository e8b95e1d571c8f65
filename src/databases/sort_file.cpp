#include "databases/sorting.h"

namespace wortlex {

SortState read_sort(ByteView file, std::size_t columns) {
    SortState sort{std::vector<std::uint8_t>(columns, 0), 0};
    if (file.size() < columns + 1) return sort;
    const auto column = std::to_integer<std::size_t>(file[columns]);
    if (column >= columns) return sort;
    for (std::size_t i = 0; i < columns; ++i) sort.descending[i] = file[i] == std::byte{0} ? 0 : 1;
    sort.column = column;
    return sort;
}

Bytes sort_bytes(const SortState& sort) {
    Bytes file;
    for (const auto flag : sort.descending) file.push_back(std::byte{flag});
    file.push_back(static_cast<std::byte>(sort.column));
    return file;
}

SortState LoadSort(const std::string& path, std::size_t columns) {
    const auto file = read_file(path, columns + 1);
    return read_sort(file ? ByteView(*file) : ByteView(), columns);
}

bool SaveSort(const std::string& path, const SortState& sort) {
    return save_atomically(path, sort_bytes(sort));
}

std::string folded(std::string_view text) {
    std::string out(text);
    for (auto& c : out)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
    return out;
}

} // namespace wortlex
