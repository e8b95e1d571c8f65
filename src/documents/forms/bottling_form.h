// The bottling page of a session: a column each for bottles, kegs and serving tanks.
#pragma once

#include "documents/work/recipe_editor.h"
#include "forms/form.h"

namespace wortlex {

/// The columns, as the log counts them, and what the keys of their rows begin with.
inline constexpr std::array bottling_columns = {"bottled", "kegged", "tanks"};

/// An empty one is disabled.
struct BottlingActions {
    std::function<void()> pick_date;
    /// The carbonation of a column: ounces of priming, and psi; nothing if the dialog was left.
    std::function<std::optional<float>(std::size_t column)> natural, forced;
};

/// Works on the live session. Of a column that is off only its check box is shown. Cancel puts the log back.
void bottling_form(Form& form, RecipeEditor& editor, const BottlingActions& actions);

} // namespace wortlex
