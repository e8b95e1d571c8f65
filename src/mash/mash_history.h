// Undo and redo in the mash designer.
#pragma once

#include "records/mash/schedules.h"

#include <deque>
#include <string>

namespace wortlex {

class MashHistory {
public:
    struct State {
        MashDesign design;
        float ratio = 0;
        std::int32_t selection = 0;
    };

    /// An edit begins; `before` is kept unless it goes on with the last one, which had the same key.
    void begin(const State& before, std::string_view key);
    void end_step() { key_.clear(); }

    bool can_undo() const { return !done_.empty(); }
    bool can_redo() const { return !undone_.empty(); }
    /// What was there before, in exchange for what is there now. Only where it can.
    State undo(const State& now) { return take(now, done_, undone_); }
    State redo(const State& now) { return take(now, undone_, done_); }

private:
    State take(const State& now, std::deque<State>& from, std::deque<State>& to);

    std::deque<State> done_, undone_;
    std::string key_;
};

} // namespace wortlex
