// The names that the file dialogs of reports propose.
#pragma once

#include <string>
#include <string_view>

namespace wortlex {

enum class ReportOutput { report, competition_form, competition_labels };

/// What stands before the name: "Comp_" of a form, "CompL_" of labels.
std::string_view name_prefix(ReportOutput output);

/// The name of a recipe's text file, without an ending. `title` is UTF-8.
std::string recipe_file_name(std::string_view title, ReportOutput output);

/// The same for a page of HTML: what an address had better not hold becomes "_".
std::string html_file_name(std::string name);

} // namespace wortlex
