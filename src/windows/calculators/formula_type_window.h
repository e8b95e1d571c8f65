// The choice of a bitterness formula.
#pragma once

#include "program/program.h"

#include <QWidget>

namespace wortlex {

/// Lets the user choose the formula of `settings`; false, and the earlier one, after Cancel.
bool choose_formula(Program& program, QWidget* owner, Settings& settings);

} // namespace wortlex
