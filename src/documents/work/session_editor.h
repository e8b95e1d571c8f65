// The work on what a session holds beside its recipe. Each edit is a step to be undone.
#pragma once

#include "base/ports/clock.h"
#include "documents/work/recipe_editor.h"

namespace wortlex {

/// A day of the calendar.
void set_brew_date(RecipeEditor& editor, const CalendarDate& date);
void set_head_brewer(RecipeEditor& editor, std::string_view windows1252);
void set_assistant_brewer(RecipeEditor& editor, std::string_view windows1252);

/// The recipe takes the place of the one that is there; the log stays.
void pick_recipe(RecipeEditor& editor, BrewDocument recipe);

/// What the ingredients page starts from: no lock, and the first line of each list selected. Under "wort size
/// equals batch size" the wort size follows, as it does in a recipe.
void start_ingredients(RecipeEditor& editor);

/// What Cancel of the ingredients page goes back to.
struct Ingredients {
    BrewDocument recipe;
    RecipeFigures figures;
    InfusionExtras infusions;
    WaterNeeds water_needs;
};
Ingredients ingredients_of(const OpenDocument& open);

/// Puts them back, one step, derived figures included; from the water record what the mash has put into it.
/// What a save leaves in the document stays.
void put_back(RecipeEditor& editor, const Ingredients& before);

} // namespace wortlex
