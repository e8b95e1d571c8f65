// Where a document's report goes: to the pages, into a file, onto the clipboard.
#pragma once

#include "documents/work/recipe_view.h"
#include "program/window_ports.h"
#include "settings/system_files.h"

namespace wortlex {

/// Gives the report of the live recipe the form that `program.recipe_print` asks for. Its lists show what
/// `view` does. A file is asked for its name; who leaves the dialog gets nothing.
void export_recipe(const WindowPorts& ports, const RecipeView& view);

/// Asks, and makes the recipe's selection that of the next start.
void save_as_default(const PrintSelection& selection, const std::string& data_folder, Prompts& prompts);

} // namespace wortlex
