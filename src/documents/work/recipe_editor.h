// The work on a recipe: what each edit changes, in its order, and what it leaves to be undone.
#pragma once

#include "base/ports/notice_board.h"
#include "documents/session_figures.h"
#include "documents/work/document_history.h"
#include "documents/work/recipe_view.h"

#include <functional>

namespace wortlex {

/// The sizes and amounts from which an edit of a size scales, so that only the last number typed counts.
struct AmountsAtStart {
    std::string edit; ///< the key of the edit that took them
    float batch_size = 0;
    float wort_size = 0;
    float efficiency = 0;
    float dough_in_water = 0;
    std::vector<float> malts, hops, extras;
};

/// The live document under work, of either kind: both hold a recipe. The window shows it, the functions below
/// and beside this file change it.
struct RecipeEditor {
    OpenDocument open;
    RecipeView view;
    DocumentHistory history;
    std::optional<AmountsAtStart> at_start = std::nullopt; ///< of the edit under way
    NoticeBoard* notices = nullptr;                        ///< where each change is told, also one taken back
    KnownFermentation fermentation = {};                   ///< of a session, for all its windows
};

/// Starts to work on the document as it is: nothing to undo, nothing under way.
void start_editing(RecipeEditor& editor, const RecipeView& view);

/// Carries out one step of the brewer's work. What has changed without a step, as on a page that is still
/// open, becomes one first, so that undoing this step takes back this step alone.
void edit(RecipeEditor& editor, std::string_view name, const std::function<void()>& change,
          std::string_view merge_key = {});

/// For what changes without one of these functions, as on a page that stays open or when the file is saved.
void tell_change(const RecipeEditor& editor);

/// The field that was typed in is left: the next edit of it is a new step.
void end_edit(RecipeEditor& editor);

/// A page that worked on the live recipe is closed: all that it changed is one step.
void end_page(RecipeEditor& editor, std::string_view name);

/// Each answers whether there was a step.
bool undo(RecipeEditor& editor);
bool redo(RecipeEditor& editor);

/// Sizes in gallons, efficiency in percent. With the lines locked to the batch size they scale from what they
/// were as the edit began; likewise with the efficiency locked.
void set_batch_size(RecipeEditor& editor, float gallons);
void set_wort_size(RecipeEditor& editor, float gallons);
void set_efficiency(RecipeEditor& editor, float percent);
/// Bitterness follows with the next other change.
void set_boil_minutes(RecipeEditor& editor, std::int32_t minutes);
void set_title(RecipeEditor& editor, std::string_view windows1252);
void set_kind(RecipeEditor& editor, RecipeKind kind);

/// The locks are no edits: they are not undone.
void lock_to_batch(RecipeEditor& editor, bool locked);
void lock_efficiency(RecipeEditor& editor, bool locked);

/// Takes a style as picked, its book with it, and aims at the middle of its bitterness.
void set_style(RecipeEditor& editor, const StyleRecord& style);
/// As a step of its own.
void choose_yeast(RecipeEditor& editor, const YeastRecord& yeast);
void set_simple_mash(RecipeEditor& editor, const SimpleMash& mash);
/// Puts the schedule of that kind in force; each keeps its own data.
void set_schedule_kind(RecipeEditor& editor, ScheduleKind kind);

} // namespace wortlex
