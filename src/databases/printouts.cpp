#include "databases/printouts.h"

#include <algorithm>
#include <array>

namespace wortlex {
namespace {

constexpr std::array entry_stops = {175, 245};

bool breaks_line(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
}

// For one line: without line ends, tabs and blanks at its end.
std::string plain(std::string text) {
    std::replace_if(text.begin(), text.end(), breaks_line, ' ');
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

std::vector<std::string> plain(std::vector<std::string> cells) {
    for (auto& cell : cells) cell = plain(std::move(cell));
    return cells;
}

void print_heads(PageContext& page, const PrintedList& list) {
    for (const auto& head : list.heads) {
        page.SelectFont(PageFont::body_italic);
        page.TabbedLine(list.stops, head);
    }
}

void print_line(PageContext& page, std::string_view line) {
    const auto tab = std::min(line.find('\t'), line.size());
    std::string label(line.substr(0, tab));
    for (const auto& part : page.wrapped(line.substr(std::min(tab + 1, line.size())), entry_stops.front())) {
        page.TabbedLine(entry_stops, std::string(label).append(1, '\t').append(part));
        label.clear();
    }
}

} // namespace

void print_list(PageContext& page, const PrintedList& list) {
    page.SetHeader(0, list.title);
    std::vector<PageColumn> columns = {{}};
    for (const int stop : list.stops) columns.push_back({stop});
    print_heads(page, list);
    for (const auto& row : list.rows) {
        page.KeepTogether(1);
        if (page.y() == 0) print_heads(page, list);
        page.TableLine(columns, plain(row));
    }
}

void EntryLines::word(std::string_view label, std::string_view word) {
    if (!word.empty()) add(std::string(label) + ":\t" + std::string(word));
}

void EntryLines::free_text(const std::string& label, std::string_view windows1252) {
    add(label + plain(utf8_from_windows1252(windows1252)));
}

void print_entry(PageContext& page, const std::string& title, const EntryLines& entry) {
    page.SetHeader(0, title);
    for (const auto& line : entry.lines()) print_line(page, line);
}

} // namespace wortlex
