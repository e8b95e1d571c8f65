// The options of a recipe's report on the screen.
#pragma once

#include "program/program.h"
#include "program/window_ports.h"

#include <QWidget>

namespace wortlex {

/// Lets the user choose; after OK the choice is the program's. False after Cancel.
bool choose_print_options(const WindowPorts& ports, QWidget* owner);

} // namespace wortlex
