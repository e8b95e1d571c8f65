// The form of the recipe window: every field and button by its key, without a toolkit.
#pragma once

#include "brewing/beer_colour.h"
#include "documents/work/recipe_lines.h"
#include "forms/form.h"

namespace wortlex {

/// What the buttons do that open another window. An empty one belongs to a window that is not there: its
/// button is disabled.
struct RecipeActions {
    std::function<void()> pick_style, pre_boil;
    std::function<void()> new_malt, edit_malt, malt_contribution;
    std::function<void()> new_hop, edit_hop, lose_alpha;
    std::function<void()> yeast_and_water, extras_and_notes, mash_schedule;
    std::function<void()> save, print, help;
    std::function<void()> save_as; ///< of a session: the recipe alone
    std::function<void()> show_colour;
};

/// What the form shows and works on. It must outlive the form.
struct RecipeSubject {
    RecipeEditor& editor;
    const ColorTable& colours;
    RecipeActions actions = {};
};

/// Fills `form` with the rows of the recipe window, or of the ingredients page of a session.
void recipe_form(Form& form, const RecipeSubject& subject);

} // namespace wortlex
