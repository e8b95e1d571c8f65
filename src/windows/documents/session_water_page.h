// The water profile of a session: the brewer's water matched to that of the recipe.
#pragma once

#include "program/window_ports.h"
#include "windows/documents/recipe_page.h"

namespace wortlex {

/// Works on the live session of `editor`, which must outlive it.
RecipePageUse water_profile_page(RecipeEditor& editor, const WindowPorts& ports);

} // namespace wortlex
