#include "reports/report_writers.h"
#include "reports/row_words.h"

#include <algorithm>
#include <numeric>

namespace wortlex {
namespace {

constexpr int lines_with_body = 12; // below a heading, before a new page is begun for it
constexpr int most_together = 12;   // lines, on one page
constexpr int colour_box = 250;     // behind the figure that it belongs to

// At the top of a page no line is left blank, and at its end none goes over to the next one.
void leave_blank(PageContext& page, int lines) {
    for (int line = 0; line < lines && page.y() > 0; ++line)
        if (!page.KeepTogether(1)) page.NewLines(1);
}

int lines_of(const ReportRow& row) {
    const auto blank = blank_lines(row.format);
    return blank.before + 1 + blank.behind;
}

int total_lines(std::span<const ReportRow> rows) {
    const auto add = [](int lines, const ReportRow& row) { return lines + lines_of(row); };
    return std::accumulate(rows.begin(), rows.end(), 0, add);
}

// What is too long goes on in lines below, in the column of the last cell.
void write_line(PageContext& page, std::span<const int> tabs, const ReportRow& row) {
    const auto font = row.is_title ? PageFont::title : PageFont::body;
    auto cells = print_cells(row);
    if (cells.empty()) cells.emplace_back();
    const auto last = std::min(cells.size() - 1, tabs.size());
    page.SelectFont(font);
    for (auto& part : page.wrapped(cells.back(), last == 0 ? 0 : tabs[last - 1])) {
        cells.back() = std::move(part);
        page.SelectFont(font);
        page.TabbedLine(tabs, tabbed_line(cells));
        for (auto& cell : cells) cell.clear();
    }
}

bool announces_more(const ReportRow& row) {
    return row.values.empty() && row.format.ends_with(":\n\n");
}

// As far as the next blank line, but not between a sentence and what it announces.
std::span<const ReportRow> first_paragraph(std::span<const ReportRow> rows) {
    std::size_t count = 1;
    while (count < rows.size() &&
           (blank_lines(rows[count - 1].format).behind == 0 || announces_more(rows[count - 1])))
        ++count;
    return rows.first(count);
}

void write_paragraph(std::span<const ReportRow> rows, std::span<const int> tabs, int lines_below,
                     PageContext& page) {
    page.KeepTogether(std::min(total_lines(rows), most_together) + lines_below);
    for (const auto& row : rows) {
        const auto blank = blank_lines(row.format);
        leave_blank(page, blank.before);
        if (blank.before == static_cast<int>(row.format.size())) continue;
        if (row.colour) page.ColourBox(colour_box, *row.colour);
        write_line(page, tabs, row);
        leave_blank(page, blank.behind);
    }
}

void write(const ReportLines& lines, int lines_below, PageContext& page) {
    for (std::span<const ReportRow> left = lines.rows; !left.empty();) {
        const auto paragraph = first_paragraph(left);
        left = left.subspan(paragraph.size());
        write_paragraph(paragraph, lines.tabs, left.empty() ? lines_below : 0, page);
    }
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

std::vector<PageColumn> columns_of(const ReportTable& table) {
    std::vector<PageColumn> columns;
    for (const auto& column : table.columns)
        columns.push_back({column.tab, column.align == HtmlAlign::left, column.end});
    return columns;
}

void write(const ReportTable& table, int lines_below, PageContext& page) {
    const auto columns = columns_of(table);
    write_titles(table, page);
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        const auto left = static_cast<int>(table.rows.size() - i);
        page.KeepTogether(left > 2 ? 1 : left + lines_below); // the last one does not stand alone
        if (page.y() == 0) write_titles(table, page);
        page.TableLine(columns, print_cells(table.rows[i]));
    }
}

void write(const ReportText& text, int lines_below, PageContext& page) {
    page.Paragraph(text.text(), lines_below);
}

// Whether the last row leaves a blank line of itself.
bool ends_blank(const ReportSection& section) {
    const auto* lines = section.blocks.empty() ? nullptr : std::get_if<ReportLines>(&section.blocks.back());
    return lines != nullptr && !lines->rows.empty() && blank_lines(lines->rows.back().format).behind > 0;
}

// Keeps the whole of a short block, or the start of a long one, on one page with the lines around it.
void keep_together(const ReportBlock& block, int lines_around, PageContext& page) {
    constexpr int titles_and_rows = 4;
    if (const auto* text = std::get_if<ReportText>(&block)) {
        if (!text->text().empty()) page.KeepParagraph(text->text());
        return;
    }
    const auto* lines = std::get_if<ReportLines>(&block);
    const int count = lines == nullptr ? titles_and_rows : total_lines(lines->rows);
    page.KeepTogether(std::min(count, most_together) + lines_around);
}

void write_heading(const std::string& heading, PageContext& page) {
    if (heading.empty()) return;
    page.SelectFont(PageFont::title);
    page.Line(heading);
}

bool is_bare(const ReportSection& section) {
    return !section.chart &&
           std::all_of(section.blocks.begin(), section.blocks.end(), [](const ReportBlock& block) {
               const auto* text = std::get_if<ReportText>(&block);
               return text != nullptr && text->text().empty();
           });
}

void write(const ReportSection& section, int lines_below, PageContext& page) {
    const auto& heading = section.print_heading ? *section.print_heading : section.heading;
    if (section.chart) {
        section.chart->print(page);
        return leave_blank(page, 1);
    }
    if (section.print_body) {
        page.KeepTogether(lines_with_body);
        write_heading(heading, page);
        section.print_body(page);
        return leave_blank(page, 1);
    }
    const int lines_around = (heading.empty() ? 0 : 2) + (section.blocks.size() == 1 ? lines_below : 0);
    if (!section.blocks.empty()) keep_together(section.blocks.front(), lines_around, page);
    write_heading(heading, page);
    for (const auto& block : section.blocks) {
        if (&block != &section.blocks.front()) keep_together(block, 0, page);
        const int below = &block == &section.blocks.back() ? lines_below : 0;
        std::visit([&](const auto& content) { write(content, below, page); }, block);
    }
    if (!ends_blank(section)) leave_blank(page, 1);
}

// The lines of the headings without a text that follow: they are not left alone on a sheet of their own.
template <class Sections>
int bare_lines(Sections first, Sections last) {
    constexpr int blank_and_heading = 3;
    int lines = 0;
    for (; first != last && is_bare(**first); ++first) lines += blank_and_heading;
    return lines;
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
    for (auto section = sections.begin(); section != sections.end(); ++section)
        write(**section, bare_lines(section + 1, sections.end()), page);
}

} // namespace wortlex
