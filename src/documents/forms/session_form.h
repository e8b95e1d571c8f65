// The form of the session window, without a toolkit: the brew day, its recipe, what that aims at and what was
// measured, and the pages.
#pragma once

#include "brewing/beer_colour.h"
#include "documents/work/session_editor.h"
#include "forms/form.h"

namespace wortlex {

/// What the buttons do that open another window. An empty one belongs to a page that is not there: its button
/// is disabled and says so.
struct SessionActions {
    std::function<void()> pick_date, pick_recipe, show_colour;
    std::function<void()> ingredients, mash, water_needed, water_profile;
    std::function<void()> efficiency, fermentation, bottling, notes;
    std::function<void()> analyze, finalize;
    std::function<void()> save, print, help;
};

/// What the form shows and works on. It must outlive the form.
struct SessionSubject {
    RecipeEditor& editor; ///< of a session
    const ColorTable& colours;
    const WaterNeeds& usual_water; ///< what a new session starts from
    SessionActions actions = {};
};

void session_form(Form& form, const SessionSubject& subject);

/// The keys of the buttons that a mark stands before, in the order of a brew day. That of the mark is the
/// same with `page_mark` behind it.
inline constexpr std::array session_page_keys = {"ingredients",   "mash",       "water_needed",
                                                 "water_profile", "efficiency", "fermentation",
                                                 "bottling",      "notes",      "finalize"};
inline constexpr const char* page_mark = "_filled";

} // namespace wortlex
