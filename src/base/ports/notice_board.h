// The board on which changes are told, once, by whoever makes them.
#pragma once

#include <functional>
#include <memory>
#include <vector>

namespace wortlex {

/// What a change was about.
enum class Change {
    document, ///< the live one: what it holds, or where it comes from
    settings  ///< the working values
};

/// Kept by who listens; with its end he hears nothing more, and it may end after the board.
using Listening = std::shared_ptr<const std::function<void(Change)>>;

/// While it is told of a change, a listener may stop itself or others, start new ones and tell again. Who has
/// been stopped hears nothing more; who joins hears of the next change.
class NoticeBoard {
public:
    void tell(Change change) {
        std::erase_if(listeners_, [](const auto& listener) { return listener.expired(); });
        const auto present = listeners_; // a copy: listeners come and go
        for (const auto& listener : present)
            if (const auto heard = listener.lock()) (*heard)(change);
    }

    [[nodiscard]] Listening listen(std::function<void(Change)> heard) {
        auto listening = std::make_shared<const std::function<void(Change)>>(std::move(heard));
        listeners_.push_back(listening);
        return listening;
    }

private:
    std::vector<std::weak_ptr<const std::function<void(Change)>>> listeners_;
};

} // namespace wortlex
