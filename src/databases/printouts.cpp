#include "databases/printouts.h"

#include "page/characters.h"

#include <algorithm>
#include <array>

namespace wortlex {
namespace {

constexpr std::array entry_stops = {175, 245};
constexpr std::size_t most_beside_label = 60; // characters that fit even in the largest print

constexpr double letter_height = 11.93; // units, of the body font
constexpr int column_gap = 2;

// Shares of the height, in the letters of the pages.
double width_of(char character) {
    const auto is_one_of = [character](std::string_view letters) {
        return letters.find(character) != std::string_view::npos;
    };
    if (is_one_of(" !',./:;I[]fijlt|")) return 0.26;
    if (is_one_of("()-r")) return 0.33;
    if (is_one_of("%@GMOQWm")) return 0.84;
    return character >= 'A' && character <= 'Z' ? 0.68 : 0.55;
}

std::string cut_to_column(std::string_view text, int units) {
    double room = (units - column_gap) / letter_height;
    std::size_t end = 0;
    while (end < text.size()) {
        if (begins_character(text[end])) room -= width_of(text[end]);
        if (room < 0) break;
        ++end;
    }
    return std::string(text.substr(0, end));
}

bool breaks_line(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
}

// For one line: without line ends, tabs and blanks at its end.
std::string plain(std::string text) {
    std::replace_if(text.begin(), text.end(), breaks_line, ' ');
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

std::string row_text(const std::vector<std::string>& cells, const std::vector<int>& stops) {
    std::string row;
    for (std::size_t column = 0; column < cells.size(); ++column) {
        const int begin = column == 0 ? 0 : stops.at(column - 1);
        const bool is_last = column == stops.size();
        const auto cell = plain(cells[column]);
        row += is_last ? cell : cut_to_column(cell, stops.at(column) - begin) + '\t';
    }
    return row;
}

void print_heads(PageContext& page, const PrintedList& list) {
    for (const auto& head : list.heads) {
        page.SelectFont(PageFont::body_italic);
        page.TabbedLine(list.stops, head);
    }
}

// Up to the last blank that fits; a word that is longer than the line is broken.
std::string_view first_line(std::string_view text) {
    const auto room = first_characters(text, most_beside_label);
    if (room.size() == text.size()) return text;
    const auto blank = text.substr(0, room.size() + 1).find_last_of(' ');
    const auto last = text.substr(0, blank).find_last_not_of(' ');
    return blank == std::string_view::npos || last == std::string_view::npos ? room
                                                                             : text.substr(0, last + 1);
}

std::vector<std::string_view> wrapped(std::string_view text) {
    std::vector<std::string_view> lines = {first_line(text)};
    while (lines.back().size() < text.size()) {
        text.remove_prefix(lines.back().size());
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
        lines.push_back(first_line(text));
    }
    return lines;
}

void print_line(PageContext& page, std::string_view line) {
    const auto tab = std::min(line.find('\t'), line.size());
    std::string label(line.substr(0, tab));
    for (const auto part : wrapped(line.substr(std::min(tab + 1, line.size())))) {
        page.TabbedLine(entry_stops, label + '\t' + std::string(part));
        label.clear();
    }
}

} // namespace

void print_list(PageContext& page, const PrintedList& list) {
    page.SetHeader(0, list.title);
    print_heads(page, list);
    for (const auto& row : list.rows) {
        page.KeepTogether(1);
        if (page.y() == 0) print_heads(page, list);
        page.TabbedLine(list.stops, row_text(row, list.stops));
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
