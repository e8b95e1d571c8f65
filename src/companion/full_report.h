// The reports of the program's exports, for many documents in turn.
#pragma once

#include "documents/work/stocks.h"
#include "program/program.h"
#include "reports/report_writers.h"

namespace wortlex {

class FullReports {
public:
    /// Reads what the brewer has chosen as default, sections, theme, colours, and what is in stock. `program`
    /// must live on.
    explicit FullReports(Program& program);

    /// The live document, which has been worked out.
    TextSink text() const;
    HtmlWriter html() const;

private:
    DocumentReport report() const;

    Program& program_;
    PrintSelection recipe_sections_;
    PrintSelection session_sections_;
    HtmlTheme theme_;
    ColorTable color_table_;
    Stocks stocks_;
};

} // namespace wortlex
