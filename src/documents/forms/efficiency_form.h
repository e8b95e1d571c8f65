// The efficiency page of a session: what the kettle should hold beside what was measured.
#pragma once

#include "documents/forms/gravity_rows.h"
#include "documents/work/recipe_editor.h"

namespace wortlex {

/// The two tables of the page. A cell has the key COLUMN_LINE, the words of a column COLUMN_head, those of a
/// line LINE_word.
inline constexpr std::array target_columns = {"water", "raw", "post"};
inline constexpr std::array target_lines = {"volume", "sg", "plato"};
inline constexpr std::array point_columns = {"total", "mash", "extract"};
inline constexpr std::array point_lines = {"most", "aimed"};

/// An empty one is disabled.
struct EfficiencyActions {
    MeasureGravity hydrometer, refractometer; ///< the latter keeps its reading in the session
    std::function<void()> print;
};

/// Works on the live session, whose missing recording is put in as it opens. Cancel puts the recording back
/// as it was before.
void efficiency_form(Form& form, RecipeEditor& editor, const EfficiencyActions& actions);

} // namespace wortlex
