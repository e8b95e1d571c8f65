// Where a document's report goes: to the pages, into a file, onto the clipboard.
#pragma once

#include "documents/work/recipe_view.h"
#include "program/window_ports.h"
#include "settings/system_files.h"

namespace wortlex {

/// Gives the report of the live document the form that the selection of its kind asks for. Its lists show
/// what `view` does. A file is asked for its name; who leaves the dialog gets nothing.
void export_document(const WindowPorts& ports, const RecipeView& view);

/// Asks, and makes the selection for that kind of document that of the next start.
void save_as_default(DocumentKind kind, const PrintSelection& selection, const std::string& data_folder,
                     Prompts& prompts);

} // namespace wortlex
