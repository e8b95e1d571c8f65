// The form of the recipe window: every field and button by its key, without a toolkit.
#pragma once

#include "calculators/beer_colour.h"
#include "documents/recipe_view.h"
#include "measures/fields/form.h"

namespace wortlex {

/// What the form shows. It must outlive the form.
struct RecipeSubject {
    OpenDocument open;
    RecipeView& view;
    const ColorTable& colours;
    std::function<void()> show_colour =
        nullptr; ///< opens the colour in a window of its own; empty: nothing does
};

/// Fills `form` with the rows of the recipe window. What cannot be edited yet is shown, and its button is
/// disabled.
void recipe_form(Form& form, const RecipeSubject& subject);

} // namespace wortlex
