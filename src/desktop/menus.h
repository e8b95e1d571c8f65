// Menu bars filled from a plain tree of entries.
#pragma once

#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <functional>
#include <string_view>

namespace wortlex {

/// What an entry does, and the platform's keys for it. Without an action the entry is disabled.
struct MenuAction {
    std::function<void()> action;
    QKeySequence::StandardKey key = QKeySequence::UnknownKey;
    bool key_is_of_button = false; ///< a button of the window hears it: heard twice it would do nothing
};

/// `Entries` are rows with `caption`, `command` and `entries`; `action_of` is asked for each command.
template <class Entries>
void fill_menu(QMenu& menu, const Entries& entries, const std::function<MenuAction(int)>& action_of);

/// Adds one entry.
QAction& add_action(QMenu& menu, std::string_view caption, int command, const MenuAction& does);
QMenu& add_menu(QMenu& menu, std::string_view caption);
QMenu& add_menu(QMenuBar& bar, std::string_view caption);

template <class Entries>
void fill_menu(QMenu& menu, const Entries& entries, const std::function<MenuAction(int)>& action_of) {
    for (const auto& entry : entries) {
        if (entry.entries.empty())
            add_action(menu, entry.caption, entry.command, action_of(entry.command));
        else
            fill_menu(add_menu(menu, entry.caption), entry.entries, action_of);
    }
}

template <class Entries>
void fill_menu(QMenuBar& bar, const Entries& entries, const std::function<MenuAction(int)>& action_of) {
    for (const auto& entry : entries) fill_menu(add_menu(bar, entry.caption), entry.entries, action_of);
}

} // namespace wortlex
