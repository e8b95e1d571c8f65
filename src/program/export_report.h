// Where a document's report goes: to the pages, into a file, onto the clipboard.
#pragma once

#include "documents/work/recipe_view.h"
#include "program/window_ports.h"
#include "reports/catalogue.h"
#include "reports/print_options.h"
#include "settings/system_files.h"

namespace wortlex {

/// Asks what a competition's form or labels tell beside the beer; false stops.
using CompetitionQuestion = std::function<bool(ReportOutput, ReportForm)>;

/// Gives the report of the live document the form that the selection of its kind asks for, or of a session
/// the report on its recipe that of the recipes' selection. Its lists show what `view` does. A file is asked
/// for its name; who leaves a dialog gets nothing.
void export_document(const WindowPorts& ports, const RecipeView& view, const CompetitionQuestion& ask,
                     ReportPart part = ReportPart::whole);

/// Asks, and makes the selection for that kind of document that of the next start.
void save_as_default(DocumentKind kind, const PrintSelection& selection, const std::string& data_folder,
                     Prompts& prompts);

} // namespace wortlex
