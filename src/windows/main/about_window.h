// The about box.
#pragma once

#include "program/program.h"

#include <QWidget>

namespace wortlex {

/// Shows it until it is closed.
void show_about(Program& program, QWidget* owner);

} // namespace wortlex
