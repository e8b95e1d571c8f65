// The Hop IBU Calculator on the screen.
#pragma once

#include "frame/program.h"

#include <QWidget>

namespace wortlex {

/// Shows the calculator for a picked hop until it is closed. A formula chosen in it is gone with it.
void run_ibu_calculator(Program& program, QWidget* owner, const HopUse& picked);

} // namespace wortlex
