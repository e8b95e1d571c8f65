// All that the main window offers, an entry a command: its menu, its picture button, its window and who opens
// it stand here and nowhere else. What nobody opens is shown disabled.
#pragma once

#include "desktop/tool_window.h"
#include "program/main_screen.h"
#include "program/window_ports.h"

#include <QKeySequence>

#include <span>

namespace wortlex {

/// The menus that hold commands; `main_menu` puts them together.
enum class Menu {
    none,
    create,
    open,
    file,
    calculators,
    hydrometer,
    refractometer,
    time,
    databases,
    options,
    help
};

/// A `&` stands before the letter that picks the entry, unique in its menu.
struct MenuPlace {
    Menu menu = Menu::none;
    std::string_view caption;
};

struct Tool {
    int command = 0;
    std::array<MenuPlace, 3> menus = {};
    ButtonPicture button = {};
    QKeySequence::StandardKey key = QKeySequence::UnknownKey;

    /// A command that asks or shows something and is done.
    void (*run)(const WindowPorts& ports, QWidget* main) = nullptr;

    /// A page of the handbook.
    std::string_view help_page = {};

    /// A window that stays open, once at most. It deletes itself when it is closed.
    WindowInfo window = {};
    ToolWindow* (*make)(const WindowPorts& ports, const WindowInfo& info, QWidget* origin) = nullptr;
    /// Comes before the window; false if there is none to be opened.
    bool (*prepare)(const WindowPorts& ports, QWidget* main) = nullptr;
};

/// In the order of their menus.
std::span<const Tool> tools();
const Tool& tool_of(int command);

/// Whether it has a window that stays open.
inline bool has_window(const Tool& tool) {
    return tool.make != nullptr;
}

std::vector<MainScreenButton> main_screen_buttons();

} // namespace wortlex
