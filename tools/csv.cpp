#include "csv.h"

#include <algorithm>

namespace wortlex {
namespace {

// Takes one cell off `rest`, with the comma behind it.
std::string take_quoted(std::string_view& rest, const Place& place) {
    std::string cell;
    rest.remove_prefix(1);
    while (true) {
        const auto quote = rest.find('"');
        if (quote == std::string_view::npos) refuse(place, "a quote is not closed");
        cell += rest.substr(0, quote);
        rest.remove_prefix(quote + 1);
        if (!rest.starts_with('"')) return cell;
        cell += '"';
        rest.remove_prefix(1);
    }
}

std::string take_plain(std::string_view& rest, const Place& place) {
    std::string cell(rest.substr(0, rest.find(',')));
    if (cell.find('"') != std::string::npos) refuse(place, "a quote stands inside a cell without quotes");
    rest.remove_prefix(cell.size());
    return cell;
}

std::vector<std::string> split(std::string_view rest, const Place& place) {
    std::vector<std::string> cells;
    while (true) {
        cells.push_back(rest.starts_with('"') ? take_quoted(rest, place) : take_plain(rest, place));
        if (rest.empty()) return cells;
        if (!rest.starts_with(',')) refuse(place, "there is no comma behind a closing quote");
        rest.remove_prefix(1);
    }
}

} // namespace

const SourceValue& CsvRow::operator[](std::string_view column) const {
    const auto found = std::find_if(cells.begin(), cells.end(),
                                    [&](const SourceValue& cell) { return cell.name == column; });
    if (found == cells.end()) refuse({place.file, 1}, "there is no column \"" + std::string(column) + "\"");
    return *found;
}

std::vector<CsvRow> read_csv(const std::string& path) {
    const auto lines = read_lines(path);
    const auto columns = split(lines.front(), {path, 1});
    std::vector<CsvRow> rows;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        if (lines[i].empty()) continue;
        CsvRow row{{path, i + 1}, {}};
        const auto cells = split(lines[i], row.place);
        if (cells.size() != columns.size())
            refuse(row.place, std::to_string(cells.size()) + " cells where there are " +
                                  std::to_string(columns.size()) + " columns");
        for (std::size_t column = 0; column < cells.size(); ++column)
            row.cells.push_back({row.place, columns[column], cells[column]});
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace wortlex
