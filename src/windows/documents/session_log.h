// The pages on which the log of a brew day is kept, beside a session's window.
#pragma once

#include "calculators/refractometer_tool.h"
#include "program/window_ports.h"
#include "windows/documents/recipe_page.h"

namespace wortlex {

/// Each works on the live session of `editor`, which must outlive it.
RecipePageUse efficiency_page(RecipeEditor& editor, const WindowPorts& ports);
RecipePageUse fermentation_page(RecipeEditor& editor, const WindowPorts& ports);
RecipePageUse bottling_page(RecipeEditor& editor, const WindowPorts& ports);
RecipePageUse session_notes_page(RecipeEditor& editor, const WindowPorts& ports);
RecipePageUse water_needed_page(RecipeEditor& editor, const WindowPorts& ports);

/// The head of what its instruments print.
PrintedSession printed_session(const OpenDocument& open);

} // namespace wortlex
