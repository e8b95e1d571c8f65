// Undo and redo of the work on a document of either kind.
#pragma once

#include "documents/snapshot.h"

#include <deque>

namespace wortlex {

/// Gives a document of before what a save has left in the live one.
void keep_saved_marks(BrewDocument& document, const BrewDocument& live);

/// Remembers the document as it was before each step. What a save leaves in the document - its packed flag
/// byte and the method that it carries - is no step and is never taken back, nor is that the stock was
/// booked.
class DocumentHistory {
public:
    /// Forgets everything and starts from the document as it is.
    void start(const OpenDocument& open);

    /// The document has changed: a step of that name; false, and none, if nothing is different. Edits of the
    /// same `merge_key`, if it is not empty, make one step until `end_step`.
    bool note(const OpenDocument& open, std::string_view name, std::string_view merge_key = {});
    void end_step() { merge_key_.clear(); }
    /// How many steps were made, undone or redone.
    std::size_t taken() const { return taken_; }
    /// What was worked out since belongs to the last step.
    void settle(const OpenDocument& open) { now_ = state_of(open); }

    /// The names of the steps that `undo` and `redo` would take; empty without one.
    std::string_view to_undo() const;
    std::string_view to_redo() const;
    /// Each answers whether there was a step to take. What is worked out comes back with the document, as it
    /// was.
    bool undo(const OpenDocument& open);
    bool redo(const OpenDocument& open);

private:
    struct State {
        DocumentImage image;
        RecipeFigures figures;
        WaterBalance water; ///< of a session
    };
    struct Step {
        std::string name;
        State state; ///< the document on the other side of the step
    };

    static State state_of(const OpenDocument& open);
    bool is_current(const OpenDocument& open);
    void take(const OpenDocument& open, std::deque<Step>& from, std::deque<Step>& to);

    State now_;
    std::deque<Step> done_, undone_; ///< the last one is the next to be taken
    std::string merge_key_;
    std::size_t taken_ = 0;
};

} // namespace wortlex
