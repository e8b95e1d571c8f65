// Sets a recipe to a figure that the brewer wants.
#pragma once

#include "windows/documents/recipe_actions.h"

namespace wortlex {

inline constexpr auto set_to_key = Qt::CTRL | Qt::Key_T;
inline constexpr const char* set_to_meaning =
    "The amounts for the gravity, bitterness, color or size that you want";

/// Asks what is wanted, over the side's window, and carries it out as one step.
void show_set_to(const RecipeSide& side);

} // namespace wortlex
