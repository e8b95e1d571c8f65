// The work on the three lists of a recipe: malts, hops and extras. Each edit is about the selected line and
// does nothing without one.
#pragma once

#include "documents/work/recipe_editor.h"

namespace wortlex {

/// What a line can weigh.
inline constexpr float most_malt_weight = 100000; ///< in any unit
inline constexpr float most_hop_weight = 160000;  ///< ounces or grams

/// The line that is selected, or nothing.
std::optional<std::size_t> selected_malt(const RecipeEditor& editor);
std::optional<std::size_t> selected_hop(const RecipeEditor& editor);
std::optional<std::size_t> selected_extra(const RecipeEditor& editor);

/// A new line stands before the selected one, or last if that is the last or none is selected; it is selected
/// then.
void add_malt(RecipeEditor& editor, const MaltRecord& malt);
void add_hop(RecipeEditor& editor, const HopRecord& hop);
void add_extra(RecipeEditor& editor, const ExtraRecord& extra);

/// A line with its amounts, as one step; it stands last and is selected.
void append_malt(RecipeEditor& editor, const MaltUse& line);
void append_hop(RecipeEditor& editor, const HopUse& line);

/// The selection goes up by one, not above the first line.
void delete_malt(RecipeEditor& editor);
void delete_hop(RecipeEditor& editor);
void delete_extra(RecipeEditor& editor);

/// A line as its dialog left it, or as typing into one of its cells makes it.
void replace_malt(RecipeEditor& editor, std::size_t line, const MaltUse& changed);
void replace_hop(RecipeEditor& editor, std::size_t line, const HopUse& changed);
void replace_extra(RecipeEditor& editor, const ExtraUse& changed);

/// A malt is to have so many percent of the grain, more than 0 and less than 100. All of it weighs as much as
/// before: the other malts share the rest as they did. Nothing happens where they weigh nothing.
void set_malt_share(RecipeEditor& editor, std::size_t line, float percent);

/// More or less by the increment of the settings, for an extra by 0.05. A weight never comes down to nothing:
/// less is taken only from more than the increment.
enum class Step { more, less };
void step_malt(RecipeEditor& editor, Step step);
void step_hop(RecipeEditor& editor, Step step);
void step_extra(RecipeEditor& editor, Step step);

/// Five minutes at a time; above the boil come first wort and mash, below 0 the dry hop.
void step_boil(RecipeEditor& editor, Step step);
/// The time of an extra, by one minute or day.
void step_extra_time(RecipeEditor& editor, Step step);

/// Sorts by a column and then by the others; the direction changes with each click. The selection stays with
/// its line. Fewer than two lines stay as they are.
void sort_malts(RecipeEditor& editor, std::size_t column);
void sort_hops(RecipeEditor& editor, std::size_t column);
void sort_extras(RecipeEditor& editor, std::size_t column);

} // namespace wortlex
