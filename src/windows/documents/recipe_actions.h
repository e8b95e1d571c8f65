// What the buttons of a recipe's page do that ask the brewer more: a pick list or a dialog first, then the
// edit; and the pages that lie beside it.
#pragma once

#include "documents/forms/page_forms.h"
#include "documents/forms/recipe_form.h"
#include "windows/databases/ingredient_windows.h"
#include "windows/documents/open_pages.h"
#include "windows/documents/recipe_page.h"

namespace wortlex {

/// Whose recipe it is, from which side, and over which window.
struct RecipeSide {
    RecipeEditor& editor;
    WindowPorts ports;
    Opener opener = Opener::main;
    QWidget* owner = nullptr;
};

/// Style, malts, hops, the pre-boil calculator, the colour, and the pages of yeast and water, extras and
/// notes. `save` is what their key saves by. The rest of the actions is the window's own.
RecipeActions recipe_actions(const RecipeSide& side, OpenPages& pages, const std::function<void()>& save);

/// Opens a page that works on the document as its window does, or brings it forward. It takes the keys of the
/// document's menu; `save` is what theirs saves by.
void show_page(const RecipeSide& side, OpenPages& pages, const RecipePageUse& use,
               const std::function<void()>& save);

/// The pages that lie beside a recipe, by their template.
std::string_view yeast_water_template(Opener opener);
std::string_view extras_template(Opener opener);

/// The colour of the live document, large, over its window.
void show_colour(const RecipeSide& side, OpenPages& pages);

} // namespace wortlex
