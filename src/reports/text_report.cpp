#include "reports/report_writers.h"
#include "reports/row_words.h"

namespace wortlex {
namespace {

void write(const ReportLines& lines, TextSink& sink) {
    for (const auto& row : lines.rows) put_words(text_words(row), sink);
}

void write(const ReportTable& table, TextSink& sink) {
    put_words(text_titles(table), sink);
    for (const auto& row : table.rows) put_words(text_words(row), sink);
}

void write(const ReportText& text, TextSink& sink) {
    sink.long_text(text.text());
    if (!sink.text().ends_with("\n")) sink.put("\n");
}

void write_heading(const ReportSection& section, TextSink& sink) {
    if (!section.text_heading.empty()) {
        put_words(section.text_heading, sink);
    } else if (!section.heading.empty()) {
        sink.heading(section.heading);
    }
}

} // namespace

void write_text(const DocumentReport& report, TextSink& sink) {
    put_words(report.text_head, sink);
    for (const auto& section : report.sections) {
        if (section.chart) continue;
        write_heading(section, sink);
        for (const auto& block : section.blocks)
            std::visit([&](const auto& content) { write(content, sink); }, block);
        if (!sink.text().ends_with("\r\n\r\n")) sink.put("\n");
    }
}

} // namespace wortlex
