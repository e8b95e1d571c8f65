// The simple mash schedule under work, and the form of its window.
#pragma once

#include "forms/form.h"
#include "measures/twins.h"
#include "records/mash/schedules.h"

namespace wortlex {

/// What a session adds to the schedule.
struct SessionMash {
    InfusionExtras infusions;
    float wort_ph = 5.5F;
    TwinGravity runnings; ///< where they were stopped

    bool operator==(const SessionMash&) const = default;
};

/// The working copy of a simple schedule. The document takes it over with OK.
struct SimpleMashWork {
    SimpleMash mash;
    float ratio = 0; ///< quarts per pound; carries the water over from one grain bill to the next
    float grain = 0; ///< pounds to mash
    SessionMash session{};
    float quarts = 0; ///< in a session's mash after the last infusion, worked out

    bool operator==(const SimpleMashWork&) const = default;
};

/// A copy of `record` for `grain` pounds. A ratio above 0 (quarts per pound) gives the water; otherwise the
/// water gives the ratio, and without water the settings do. A schedule of no kind becomes a single step.
SimpleMashWork open_simple_mash(const SimpleMash& record, float ratio, float grain, const Settings& settings);

/// The water and its ratio follow each other. `shown` is quarts per pound or litres per kilogram.
void set_mash_quarts(SimpleMashWork& work, float quarts);
void set_mash_ratio(SimpleMashWork& work, float shown, Units units);
/// The grain bill has changed: the water follows by the ratio as it stands.
void set_mash_grain(SimpleMashWork& work, float pounds);

/// Works out the infusions of a session, after any change.
void work_out_infusions(SimpleMashWork& work);

/// A session adds the dough-in and the infusions to the form of the recipe, and names its fields otherwise.
enum class MashSide { recipe, session };

/// Of the dough-in in the unit of volumes.
const char* mash_volume_label(MashSide side, const Settings& settings);

/// An empty one belongs to a window that is not there: its button is disabled.
struct SimpleMashActions {
    std::function<void()> revert;
    std::function<void()> graph;
    std::function<void()> print;
    std::function<void()> help;
    /// Of a session.
    std::function<void()> calculate_strike, correct_gravity, measure_runnings;
};

/// Edits `work`, which must outlive the form.
void simple_mash_form(Form& form, SimpleMashWork& work, const Settings& settings, MashSide side,
                      SimpleMashActions actions = {});

} // namespace wortlex
