// The board on which changes are told.
#pragma once

#include "base/ports/desk.h"

#include <map>
#include <utility>

namespace wortlex {

/// While it is told of a change, a listener may stop itself or others, start new ones and tell again. Who has
/// been stopped hears nothing more; who joins hears of the next change.
class NoticeBoard : public Notices {
public:
    void tell(Change change) override {
        const int newest = last_;
        int number = 0;
        for (auto next = listeners_.begin(); next != listeners_.end() && next->first <= newest;
             next = listeners_.upper_bound(number)) {
            number = next->first;
            const auto heard = next->second; // a copy: it lives on when the listener stops itself
            heard(change);
        }
    }
    int listen(std::function<void(Change)> heard) override {
        listeners_.emplace(++last_, std::move(heard));
        return last_;
    }
    void stop(int listener) override { listeners_.erase(listener); }

private:
    std::map<int, std::function<void(Change)>> listeners_;
    int last_ = 0;
};

} // namespace wortlex
