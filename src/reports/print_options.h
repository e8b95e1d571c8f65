// What of a document is printed or exported, and to where.
#pragma once

#include "forms/form.h"
#include "records/documents/session_document.h"
#include "reports/file_names.h"
#include "settings/system_files.h"

namespace wortlex {

enum class ReportForm : std::int32_t { print, text_file, html_file, clipboard };

/// The form of output is kept in three flags; without one it is print.
ReportForm report_form(const PrintSelection& selection);
void set_report_form(PrintSelection& selection, ReportForm form);

/// The same for what is put out, in two flags.
ReportOutput report_output(const PrintSelection& selection);

struct PrintOptionsActions {
    std::function<void()> html_themes, save_as_default, help; ///< an empty one is disabled
};

/// Of which document the options are, and what it has.
struct PrintedDocument {
    DocumentKind kind = DocumentKind::recipe;
    bool has_mash = true;      ///< grain to mash, without which there is no schedule
    bool has_own_water = true; ///< with a name, without which it has no graph; of a session, as what follows
    bool has_notes = true;
    bool has_vessels = true; ///< that were filled
};
PrintedDocument printed_document(DocumentKind kind, const BrewDocument& document,
                                 const SessionDocument& session);

/// The options of a report, on `selection`, which must outlive the form. What the chosen output does not hold
/// cannot be chosen.
void print_options_form(Form& form, PrintSelection& selection, const PrintedDocument& document,
                        const PrintOptionsActions& actions);

} // namespace wortlex
