// The Hop Time Degradation Calculator on the screen.
#pragma once

#include "desktop/window_table.h"
#include "program/program.h"
#include "program/window_ports.h"

#include <QWidget>

#include <optional>

namespace wortlex {

/// Shows the calculator for `work`, which keeps start alpha, age, temperature and kind of storage as they
/// were left, with OK or not; so does the program, save the alpha. The adjusted alpha after OK, percent.
std::optional<float> degrade_hop(const WindowPorts& ports, QWidget* owner, HopUse& work,
                                 Opener opener = Opener::main);

} // namespace wortlex
