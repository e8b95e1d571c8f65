#include "reports/report_writers.h"
#include "reports/row_words.h"

#include <algorithm>
#include <array>

namespace wortlex {
namespace {

constexpr int page_width = 550; // to which the columns of every list add up

using Cells = std::vector<ReportCell>;

void write_heading(HtmlWriter& page, const std::string& heading) {
    page.table_start();
    page.heading_cell_start(HtmlAlign::left, HtmlArea::heading);
    page.bold_cell_end(heading);
    page.table_end();
}

std::string_view or_blank(const std::string& text) {
    return text.empty() ? html_blank : std::string_view(text);
}

// The width of a cell that shall take `share` pixels of the page, so that all tables end at the same place.
int width_of(int share, const HtmlWriter& page) {
    return std::max(share - page.cell_frame(), 1);
}

void write_cell(HtmlWriter& page, const ReportCell& cell, int width) {
    const auto area = cell.is_label ? HtmlArea::descriptor : HtmlArea::field;
    if (cell.is_figure) {
        page.right_cell_start(width, HtmlAlign::right, area);
    } else {
        page.left_cell_start(width, HtmlAlign::left, area);
    }
    page.cell_end(or_blank(cell.text));
}

// A line of text without labels and figures.
bool is_sentence(const Cells& cells) {
    return cells.size() == 1;
}

std::size_t columns_of(const ReportRow& row, const Cells& cells) {
    return cells.size() + (row.colour ? 1 : 0);
}

// The width of one of `columns` cells that share the page.
int shared_width(std::size_t at, std::size_t columns, const HtmlWriter& page) {
    const auto left = [columns](std::size_t cell) { return page_width * cell / columns; };
    return width_of(static_cast<int>(left(at + 1) - left(at)), page);
}

void write_line(HtmlWriter& page, const ReportRow& row, const Cells& cells, std::size_t columns) {
    std::size_t at = 0;
    const auto next_width = [&] { return shared_width(at++, columns, page); };
    for (const auto& cell : cells) write_cell(page, cell, next_width());
    if (row.colour) {
        page.colour_cell_start(next_width(), HtmlAlign::left, *row.colour);
        page.cell_end(html_two_blanks);
    }
    while (at < columns) write_cell(page, {}, next_width());
}

// Rows that share a table: as far as the next blank line, and either all sentences or none.
struct Run {
    std::vector<const ReportRow*> rows;
    std::vector<Cells> cells;

    bool takes(const Cells& next) const {
        return rows.empty() || (is_sentence(next) == is_sentence(cells.back()) &&
                                blank_lines(rows.back()->format).behind == 0);
    }
};

void write_sentences(HtmlWriter& page, const Run& run) {
    std::string text;
    for (const auto& cells : run.cells) text += (text.empty() ? "" : "\r") + cells.front().text;
    page.table_start();
    page.left_cell_start(width_of(page_width, page), HtmlAlign::left, HtmlArea::field);
    page.multi_line_cell_end(text);
    page.table_end();
}

void write_run(HtmlWriter& page, const Run& run) {
    if (run.rows.empty()) return;
    if (is_sentence(run.cells.front())) return write_sentences(page, run);
    std::size_t columns = 1;
    for (std::size_t i = 0; i < run.rows.size(); ++i)
        columns = std::max(columns, columns_of(*run.rows[i], run.cells[i]));
    page.table_start();
    for (std::size_t i = 0; i < run.rows.size(); ++i) {
        if (i > 0) page.row_start();
        write_line(page, *run.rows[i], run.cells[i], columns);
        if (i + 1 < run.rows.size()) page.row_end();
    }
    page.table_end();
}

void write(const ReportLines& lines, HtmlWriter& page) {
    Run run;
    for (const auto& row : lines.rows) {
        auto cells = row_cells(row);
        if (cells.empty()) continue;
        if (!run.takes(cells)) {
            write_run(page, run);
            run = {};
        }
        run.rows.push_back(&row);
        run.cells.push_back(std::move(cells));
    }
    write_run(page, run);
}

void write_title(HtmlWriter& page, const ReportColumn& column) {
    auto title = column.title.substr(column.title.starts_with('\n') ? 1 : 0);
    std::replace(title.begin(), title.end(), '\n', '\r');
    page.heading_cell_start(column.align, HtmlArea::column_heading);
    page.bold_cell_end(title);
}

void write_list_cell(HtmlWriter& page, const ReportColumn& column, std::string_view text) {
    const int width = width_of(column.width, page);
    if (column.align == HtmlAlign::right) {
        page.right_cell_start(width, column.align, HtmlArea::field);
    } else {
        page.left_cell_start(width, column.align, HtmlArea::field);
    }
    page.cell_end(text);
}

void write_list_row(HtmlWriter& page, const ReportTable& table, const Cells& cells) {
    page.row_start();
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        write_list_cell(page, table.columns[i], i < cells.size() ? or_blank(cells[i].text) : html_blank);
    page.row_end();
}

// Titles have no width of their own, so that an empty list needs an empty row.
void write(const ReportTable& table, HtmlWriter& page) {
    page.table_start();
    for (const auto& column : table.columns) write_title(page, column);
    page.row_end();
    for (const auto& row : table.rows) write_list_row(page, table, row_cells(row));
    if (table.rows.empty()) write_list_row(page, table, {});
    page.bare_table_end();
}

void write(const ReportText& text, HtmlWriter& page) {
    page.table_start();
    page.left_cell_start(width_of(page_width, page), HtmlAlign::left, HtmlArea::field);
    page.multi_line_cell_end(or_blank(text.text()));
    page.table_end();
}

} // namespace

std::string picture_name(const std::string& file_name, const ReportChart& chart) {
    return file_name + chart.ending + ".jpg";
}

HtmlWriter write_html(const DocumentReport& report, const HtmlTheme& theme, const std::string& file_name) {
    HtmlWriter page(theme);
    page.page_start(report.html_title);
    write_heading(page, report.html_title);
    if (!report.html_subtitle.empty()) write_heading(page, report.html_subtitle);
    page.rule();
    for (const auto& section : report.sections) {
        if (!section.heading.empty()) write_heading(page, section.heading);
        if (section.chart) page.image(picture_name(file_name, *section.chart), section.chart->alternative);
        for (const auto& block : section.blocks)
            std::visit([&](const auto& content) { write(content, page); }, block);
        page.line_break();
    }
    page.rule();
    page.page_end();
    return page;
}

} // namespace wortlex
