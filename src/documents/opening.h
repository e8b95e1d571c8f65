// The order of work as a window opens on a document.
#pragma once

#include "base/ports/clock.h"
#include "documents/snapshot.h"

namespace wortlex {

/// Works the beer of a loaded document out anew: gravity, bitterness, colour. Under "wort size equals batch
/// size" a recipe's wort size follows first. Without malts gravity and boil gravity are those of water.
void recalculate_beer(const OpenDocument& open);

/// The same and its mash and, in a session, its water.
void recalculate_opened(const OpenDocument& open);

/// Whether the malt list shows potentials at first.
bool shows_potentials(const Settings& settings);

/// What the recipe window starts from.
struct OpenedRecipe {
    RecipeLocks locks;
    bool show_potential = true; ///< the malt list shows potentials, not contributions
    DocumentImage saved;        ///< what a save is asked against
};

/// Everything that happens as the recipe window opens. A new recipe takes the efficiency of the settings.
OpenedRecipe open_recipe_window(const OpenDocument& open, bool loaded_from_file);

/// Makes `open` a new session, which starts from the brewer's usual water figures, on the day that the
/// settings say and with their brewers.
void start_session(const OpenDocument& open, const WaterNeeds& usual, const CalendarDate& today);

/// Puts a recipe into a session: it takes the place of the one that is there, and the log stays. The gravity
/// aimed at is the actual one until it is measured.
void pick_recipe(const OpenDocument& open, BrewDocument recipe);

} // namespace wortlex
