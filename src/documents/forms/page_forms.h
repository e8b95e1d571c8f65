// The forms of the two sub-pages of a recipe: yeast and water, extras and notes. They work on the live
// document; Cancel puts back what they may have changed.
#pragma once

#include "documents/work/recipe_lines.h"
#include "forms/form.h"

namespace wortlex {

/// What the buttons do that open another window; an empty one is disabled.
struct YeastWaterActions {
    std::function<void()> pick_yeast, pick_water;
};

void yeast_water_form(Form& form, RecipeEditor& editor, const YeastWaterActions& actions);

/// Take a yeast or water as picked.
void set_yeast(RecipeEditor& editor, const YeastRecord& yeast);
void set_water(RecipeEditor& editor, const WaterRecord& water);

struct ExtrasActions {
    std::function<void()> new_extra, edit_extra;
};

void extras_form(Form& form, RecipeEditor& editor, const ExtrasActions& actions);

} // namespace wortlex
