// What the buttons of a recipe's page do that ask the brewer more: a pick list or a dialog first, then the
// edit.
#pragma once

#include "documents/forms/page_forms.h"
#include "documents/forms/recipe_form.h"
#include "windows/databases/ingredient_windows.h"

namespace wortlex {

/// Over the owner's recipe, from the side of `opener`: style, malts, hops and the pre-boil calculator. The
/// rest of the actions is the window's own.
RecipeActions line_actions(RecipeEditor& editor, const WindowPorts& ports, Opener opener, QWidget* owner);

YeastWaterActions yeast_water_actions(RecipeEditor& editor, const WindowPorts& ports, Opener opener,
                                      QWidget* owner);
ExtrasActions extras_actions(RecipeEditor& editor, const WindowPorts& ports, Opener opener, QWidget* owner);

} // namespace wortlex
