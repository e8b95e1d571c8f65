// How the pages of a brew day's log are laid out where the order of their rows is not enough.
#pragma once

#include "desktop/form_widgets.h"

namespace wortlex {

/// The answer on top, the targets beside what was recorded, the points below.
QLayout* arrange_efficiency(const FormWidgets& widgets);

/// What holds for all above a table with a column for each kind of vessel.
QLayout* arrange_bottling(const FormWidgets& widgets);

/// Two texts above two, each below its title.
QLayout* arrange_notes(const FormWidgets& widgets);

} // namespace wortlex
