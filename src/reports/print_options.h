// What of a document is printed or exported, and to where.
#pragma once

#include "forms/form.h"
#include "settings/system_files.h"

namespace wortlex {

enum class ReportForm : std::int32_t { print, text_file, html_file, clipboard };

/// The form of output is kept in three flags; without one it is print.
ReportForm report_form(const PrintSelection& selection);
void set_report_form(PrintSelection& selection, ReportForm form);

struct PrintOptionsActions {
    std::function<void()> html_themes, save_as_default, help; ///< an empty one is disabled
};

/// The options of a recipe's report, on `selection`, which must outlive the form. Without grain to mash there
/// is no schedule to choose.
void recipe_print_form(Form& form, PrintSelection& selection, bool has_mash,
                       const PrintOptionsActions& actions);

} // namespace wortlex
