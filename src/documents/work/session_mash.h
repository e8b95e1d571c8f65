// The work on the mash of a session. Each edit is a step to be undone.
#pragma once

#include "documents/work/recipe_editor.h"

namespace wortlex {

/// What the brewer notes of the mash besides its schedule.
struct MashLog {
    InfusionExtras infusions;
    float wort_ph = 0;
    float runnings_sg = 0;
    RefractometerPair runnings_reading;

    bool operator==(const MashLog&) const = default;
};
MashLog mash_log(const SessionDocument& session);

/// The water of the session follows.
void set_session_mash(RecipeEditor& editor, const SimpleMash& mash, const MashLog& log);
void set_heat_type(RecipeEditor& editor, SimpleHeat heat);
/// Degrees F.
void set_grain_temperature(RecipeEditor& editor, std::int32_t degrees);

} // namespace wortlex
