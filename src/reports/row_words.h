// From a row of a report to the words of its forms.
#pragma once

#include "reports/report.h"

namespace wortlex {

/// The row in columns of blanks, line ends and all.
std::string text_words(const ReportRow& row);

/// One column of a row without its blanks.
struct ReportCell {
    std::string text;
    bool is_label = false;  ///< it ends in a colon
    bool is_figure = false; ///< it holds a number
};

/// The columns of a line of labels and figures.
std::vector<ReportCell> line_cells(const ReportRow& row);
/// The columns of a row of a table.
std::vector<ReportCell> table_cells(const ReportRow& row);

/// The row in the words that it has for print alone; texts are as long as they are.
std::string print_words(const ReportRow& row);

/// How many lines are left blank in front of a row and behind it.
struct BlankLines {
    int before = 0;
    int behind = 0;
};
BlankLines blank_lines(std::string_view format);

/// The titles of a table in the text form, one line or two.
std::string text_titles(const ReportTable& table);

} // namespace wortlex
