// The fermentation page of a session: pitching, fermenters, the two gravities and what follows from them.
#pragma once

#include "documents/forms/gravity_rows.h"
#include "documents/work/recipe_editor.h"

namespace wortlex {

/// An empty one is disabled. The refractometers keep their readings in the session.
struct FermentationActions {
    MeasureGravity hydrometer, og_refractometer, fg_refractometer;
    std::function<void()> alcohol_refractometer; ///< whose figures count where the session says so
};

/// Works on the live session. Cancel puts back the log, the gravities and what the refractometers read.
void fermentation_form(Form& form, RecipeEditor& editor, const FermentationActions& actions);

} // namespace wortlex
