#include "reports/report_writers.h"
#include "reports/row_words.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr int colour_box = 250; // behind the figure that it belongs to

std::string tabbed(const std::vector<std::string>& cells) {
    std::string out;
    for (const auto& cell : cells) out += (&cell == &cells.front() ? "" : "\t") + cell;
    return out;
}

void write_row(PageContext& page, std::span<const int> tabs, const ReportRow& row, const std::string& words) {
    const auto blank = blank_lines(row.format);
    page.NewLines(blank.before);
    if (row.colour) page.ColourBox(colour_box, *row.colour);
    page.TabbedLine(tabs, words);
    page.NewLines(blank.behind);
}

void write(const ReportLines& lines, PageContext& page) {
    for (const auto& row : lines.rows) write_row(page, lines.tabs, row, tabbed(print_cells(row)));
}

// One of the two lines of titles.
std::string titles(const ReportTable& table, bool is_second) {
    std::string out;
    for (const auto& column : table.columns) {
        const auto split = std::min(column.title.find('\n'), column.title.size());
        if (&column != &table.columns.front()) out += '\t';
        if (!is_second) out += column.title.substr(0, split);
        if (is_second && split < column.title.size()) out += column.title.substr(split + 1);
    }
    return out;
}

void write_titles(const ReportTable& table, PageContext& page) {
    std::vector<int> tabs;
    for (const auto& column : table.columns)
        if (column.tab > 0) tabs.push_back(column.title_tab > 0 ? column.title_tab : column.tab);
    page.SelectFont(PageFont::body_italic);
    page.TabbedLine(tabs, titles(table, false));
    const auto second = titles(table, true);
    if (second.find_first_not_of('\t') == std::string::npos) return;
    page.SelectFont(PageFont::body_italic);
    page.TabbedLine(tabs, second);
}

// No text runs into the next column: a long name is cut off. Figures are left whole.
std::vector<std::string> fitted(const PageContext& page, const std::vector<ReportColumn>& columns,
                                std::vector<std::string> cells) {
    cells.resize(columns.size());
    for (std::size_t i = 0; i + 1 < columns.size(); ++i)
        if (columns[i].align == HtmlAlign::left)
            cells[i] = page.fitted(cells[i], columns[i].tab, columns[i + 1].tab);
    return cells;
}

void write(const ReportTable& table, PageContext& page) {
    write_titles(table, page);
    std::vector<int> tabs;
    for (const auto& column : table.columns)
        if (column.tab > 0) tabs.push_back(column.tab);
    for (const auto& row : table.rows) {
        page.KeepTogether(1);
        if (page.y() == 0) write_titles(table, page);
        write_row(page, tabs, row, tabbed(fitted(page, table.columns, print_cells(row))));
    }
}

void write(const ReportText& text, PageContext& page) {
    page.Paragraph(text.text);
}

// Whether the last row leaves a blank line of itself.
bool ends_blank(const ReportSection& section) {
    const auto* lines = section.blocks.empty() ? nullptr : std::get_if<ReportLines>(&section.blocks.back());
    return lines != nullptr && !lines->rows.empty() && blank_lines(lines->rows.back().format).behind > 0;
}

int lines_of(const ReportRow& row) {
    const auto blank = blank_lines(row.format);
    return blank.before + 1 + blank.behind;
}

// Keeps the whole of a short block, or the start of a long one, on one page with what stands above it.
void keep_together(const ReportBlock& block, int lines_above, PageContext& page) {
    constexpr int most = 12, title_and_row = 3;
    if (const auto* text = std::get_if<ReportText>(&block)) {
        page.KeepParagraph(text->text);
        return;
    }
    const auto* lines = std::get_if<ReportLines>(&block);
    int count = lines == nullptr ? title_and_row : 0;
    if (lines != nullptr) {
        for (const auto& row : lines->rows) count += lines_of(row);
    }
    page.KeepTogether(std::min(count, most) + lines_above);
}

void write_heading(const std::string& heading, PageContext& page) {
    if (heading.empty()) return;
    page.SelectFont(PageFont::title);
    page.Line(heading);
}

void write(const ReportSection& section, PageContext& page) {
    const auto& heading = section.print_heading ? *section.print_heading : section.heading;
    if (!section.blocks.empty()) keep_together(section.blocks.front(), heading.empty() ? 0 : 2, page);
    write_heading(heading, page);
    for (const auto& block : section.blocks) {
        if (&block != &section.blocks.front()) keep_together(block, 0, page);
        std::visit([&](const auto& content) { write(content, page); }, block);
    }
    if (!ends_blank(section)) page.NewLines(1);
}

} // namespace

void write_print(const DocumentReport& report, PageContext& page) {
    page.ClearHeaders();
    page.SetHeader(0, report.page_title);
    if (!report.print_title.empty()) {
        page.SelectFont(PageFont::title);
        page.CentredLine(report.print_title);
    }
    page.Rule();
    std::vector<const ReportSection*> sections;
    for (const auto& section : report.sections) sections.push_back(&section);
    std::stable_sort(sections.begin(), sections.end(),
                     [](const auto* a, const auto* b) { return a->print_order < b->print_order; });
    for (const auto* section : sections) write(*section, page);
}

} // namespace wortlex
