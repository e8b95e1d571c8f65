// From a row of a report to the words of its forms.
#pragma once

#include "page/text_sink.h"
#include "reports/report.h"

namespace wortlex {

/// The row in columns of blanks, line ends and all.
std::string text_words(const ReportRow& row);

/// What stands in a row up to a mark, without its outer blanks; a value in it takes the width that it needs.
struct ReportCell {
    std::string text;
    bool is_label = false;
    bool is_figure = false;
};
std::vector<ReportCell> row_cells(const ReportRow& row);

/// The cells in the words of print.
std::vector<std::string> print_cells(const ReportRow& row);
/// Those of a line, a tab between them.
std::string tabbed_line(const std::vector<std::string>& cells);

/// Words in which every percent sign is meant, though the sink takes two for one.
void put_words(std::string_view words, TextSink& sink);

/// How many lines are left blank in front of a row and behind it.
struct BlankLines {
    int before = 0;
    int behind = 0;
};
BlankLines blank_lines(std::string_view format);

/// The titles of a table in the text form, one line or two.
std::string text_titles(const ReportTable& table);

} // namespace wortlex
