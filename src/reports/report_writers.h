// The three forms of a report.
#pragma once

#include "page/page.h"
#include "page/text_sink.h"
#include "reports/report.h"

namespace wortlex {

/// For a text file and the clipboard.
void write_text(const DocumentReport& report, TextSink& sink);

/// For paper. The pages are begun and ended by the caller.
void write_print(const DocumentReport& report, PageContext& page);

/// A whole page of HTML. The pictures of its charts have names that begin as its file: `file_name` without
/// its ending.
HtmlWriter write_html(const DocumentReport& report, const HtmlTheme& theme,
                      const std::string& file_name = {});

/// The picture of a chart, beside that page.
std::string picture_name(const std::string& file_name, const ReportChart& chart);

} // namespace wortlex
