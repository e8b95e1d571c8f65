// What the three entry lines of a recipe add.
#pragma once

#include "documents/work/recipe_editor.h"
#include "program/window_ports.h"
#include "windows/documents/entry_line.h"

namespace wortlex {

/// "9 lb 2-row", "28 g cascade 60" and "us-05". The editor must outlive them.
EntryLineUse malt_entry(RecipeEditor& editor, const WindowPorts& ports);
EntryLineUse hop_entry(RecipeEditor& editor, const WindowPorts& ports);
EntryLineUse yeast_entry(RecipeEditor& editor, const WindowPorts& ports);

} // namespace wortlex
