// The menu bar of the main window, put together from the tools.
#pragma once

#include "program/commands.h"

namespace wortlex {

std::vector<MenuEntry> main_menu();

} // namespace wortlex
