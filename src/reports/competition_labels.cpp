#include "reports/competition.h"
#include "reports/row_parts.h"
#include "reports/row_words.h"

#include <array>

namespace wortlex {
namespace {

constexpr int label_count = 4;
constexpr std::size_t cut_line = 73;
constexpr int label_tab = 120;
constexpr std::array html_widths = {100, 320};

bool is_chosen(const StyleRecord& style) {
    return style.number != 0 || !style.name.empty() || !style.category.empty();
}

// In print the label of a session's style has a blank before its tab.
ReportRow guideline_row(const ReportSource& source) {
    const auto& style = source.open.document.style;
    const std::string label = style.book == 0 ? "AHA Style:" : "BJCP Style:";
    if (!is_chosen(style)) return {label + " |\n\n", {}};
    auto row = style_row(style);
    const std::string number = style.letter == '\0' ? "%02d" : "%02d-%c";
    row.format = label + " |" + number + " %s, %s\n\n";
    row.print_format = label + (source.open.session == nullptr ? "|" : " |") + number + "  %s, %s";
    return row;
}

void write_html_row(const ReportRow& row, HtmlWriter& page) {
    auto cells = row_cells(row);
    if (cells.size() == 1) cells.insert(cells.begin() + (cells.front().is_label ? 1 : 0), ReportCell{});
    for (std::size_t i = 0; i < html_widths.size(); ++i) {
        page.left_cell_start(html_widths.at(i), HtmlAlign::left,
                             i == 0 ? HtmlArea::descriptor : HtmlArea::field);
        page.cell_end(cells[i].text.empty() ? html_blank : std::string_view(cells[i].text));
    }
}

void write_html_label(const std::vector<ReportRow>& label, HtmlWriter& page) {
    page.rule();
    page.line_break();
    page.table_start();
    for (const auto& row : label) {
        if (&row != &label.front()) page.row_start();
        write_html_row(row, page);
        if (&row != &label.back()) page.row_end();
    }
    page.table_end();
}

// What has no label of its own stands below the others.
std::vector<std::string> label_cells(const ReportRow& row) {
    auto cells = print_cells(row);
    if (cells.size() == 1 && !row.values.empty()) cells.insert(cells.begin(), "");
    return cells;
}

} // namespace

std::vector<ReportRow> label_rows(const ReportSource& source, const CompetitionEntry& entry,
                                  bool keeps_empty) {
    const auto style = line_text(entry.texts.style), beer = line_text(source.open.document.title);
    std::vector<ReportRow> rows;
    if (!style.empty()) {
        rows.push_back({"Competition Style: |%s\n\n", {style}});
    } else if (keeps_empty || is_chosen(source.open.document.style)) {
        rows.push_back(guideline_row(source));
    }
    if (keeps_empty || !beer.empty()) rows.push_back({"Recipe Name:  |%s\n\n", {beer}});
    rows.push_back({"Submitted By:\n\n", {}});
    rows.push_back({"%s\n", {submitters(entry)}});
    const auto contact = contact_rows(entry, {.keeps_empty = keeps_empty, .parts_address = true});
    rows.insert(rows.end(), contact.begin(), contact.end());
    return rows;
}

void write_labels_text(const std::vector<ReportRow>& label, TextSink& sink) {
    const std::string cut(cut_line, '-');
    for (int i = 0; i < label_count; ++i) {
        sink.put(cut + "\n\n");
        for (const auto& row : label) put_words(text_words(row), sink);
    }
    sink.put(cut + "\n");
}

void write_labels_print(const std::vector<ReportRow>& label, PageContext& page) {
    page.ClearHeaders();
    for (int i = 0; i < label_count; ++i) {
        page.Rule();
        for (const auto& row : label) {
            page.TabbedLine({label_tab}, tabbed_line(label_cells(row)));
            page.NewLines(blank_lines(row.format).behind);
        }
        if (i + 1 < label_count) page.NewLines(2);
    }
}

HtmlWriter write_labels_html(const std::vector<ReportRow>& label, const HtmlTheme& theme) {
    HtmlWriter page(theme);
    page.page_start("Wortlex Competition Labels");
    for (int i = 0; i < label_count; ++i) write_html_label(label, page);
    page.rule();
    page.page_end();
    return page;
}

} // namespace wortlex
