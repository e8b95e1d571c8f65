// The board on which changes are told, once, by whoever makes them.
#pragma once

#include <functional>
#include <memory>
#include <vector>

namespace wortlex {

/// What a change was about.
enum class Change {
    document,    ///< the live one: what it holds, or where it comes from
    settings,    ///< the working values
    databases,   ///< the files of the ingredient databases
    calibration, ///< of the refractometers, for this run
    water,       ///< of the water profile calculator, whose chart follows
    mash         ///< of a schedule under work, or of what its charts show
};

/// Kept by who listens; with its end he hears nothing more, and it may end after the board.
using Listening = std::shared_ptr<const void>;

/// While it is told of a change, a listener may stop itself or others, start new ones and tell again. Who has
/// been stopped hears nothing more; who joins hears of the next change.
class NoticeBoard {
public:
    void tell(Change change) {
        std::erase_if(listeners_, [](const Listener& listener) { return listener.kept.expired(); });
        const auto present = listeners_; // a copy: listeners come and go
        for (const auto& listener : present)
            if (!listener.kept.expired()) listener.heard(change);
    }

    [[nodiscard]] Listening listen(std::function<void(Change)> heard) {
        auto listening = std::make_shared<int>();
        listeners_.push_back({listening, std::move(heard)});
        return listening;
    }

private:
    struct Listener {
        std::weak_ptr<const void> kept;
        std::function<void(Change)> heard;
    };

    std::vector<Listener> listeners_;
};

} // namespace wortlex
