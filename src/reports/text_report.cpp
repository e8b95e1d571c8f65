#include "reports/report_writers.h"
#include "reports/row_words.h"

namespace wortlex {
namespace {

// The sink takes "%%" for a percent sign, and here every one is meant.
void put(TextSink& sink, std::string_view words) {
    if (words.find('%') == std::string_view::npos) return sink.put(words);
    std::string piece;
    for (const char c : words) piece.append(c == '%' ? 2 : 1, c);
    sink.put(piece);
}

void write(const ReportLines& lines, TextSink& sink) {
    for (const auto& row : lines.rows) put(sink, text_words(row));
}

void write(const ReportTable& table, TextSink& sink) {
    put(sink, text_titles(table));
    for (const auto& row : table.rows) put(sink, text_words(row));
}

void write(const ReportText& text, TextSink& sink) {
    sink.long_text(text.text());
    if (!sink.text().ends_with("\n")) sink.put("\n");
}

} // namespace

void write_text(const DocumentReport& report, TextSink& sink) {
    sink.put(dashes_below(report.text_title) + "\n");
    sink.heading(report.text_title);
    for (const auto& section : report.sections) {
        if (!section.heading.empty()) sink.heading(section.heading);
        for (const auto& block : section.blocks)
            std::visit([&](const auto& content) { write(content, sink); }, block);
        if (!sink.text().ends_with("\r\n\r\n")) sink.put("\n");
    }
}

} // namespace wortlex
