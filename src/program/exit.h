// How the program ends.
#pragma once

#include "program/program.h"

namespace wortlex {

/// Asks the windows that hold work to close, then writes positions and folders. False if one of them stays
/// open, or a modal dialog is: the program then goes on and nothing is written. `position` is that of the
/// main window, nothing when it is minimised.
bool leave(Program& program, const std::optional<MainPosition>& position);

} // namespace wortlex
