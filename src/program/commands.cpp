#include "program/commands.h"

#include <utility>

namespace wortlex {
std::vector<MenuEntry> document_menu() {
    return {{"&File",
             0,
             {{"&New", command::new_document},
              {"&Open", command::open_recipe},
              {"&Save", command::save},
              {"Save &As", command::save_as},
              {"&Print / Export", command::print},
              {"E&xit", command::close}}}};
}

void CommandTable::carry_out(int command, std::function<void()> action) {
    actions_[command] = std::move(action);
}

bool CommandTable::is_built(int command) const {
    return actions_.contains(command);
}

void CommandTable::start(int command) {
    const auto found = actions_.find(command);
    if (found == actions_.end()) return;
    const auto action = found->second; // a copy: it may put another action in its own place
    action();
}

} // namespace wortlex
