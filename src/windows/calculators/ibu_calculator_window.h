// The Hop IBU Calculator on the screen.
#pragma once

#include "program/program.h"
#include "program/window_ports.h"

#include <QWidget>

namespace wortlex {

/// Shows the calculator for a picked hop until it is closed. A formula chosen in it is gone with it.
void run_ibu_calculator(const WindowPorts& ports, QWidget* owner, const HopUse& picked);

} // namespace wortlex
