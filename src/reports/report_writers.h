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

/// A whole page of HTML.
HtmlWriter write_html(const DocumentReport& report, const HtmlTheme& theme);

} // namespace wortlex
