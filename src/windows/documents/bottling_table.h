// How the bottling page is laid out.
#pragma once

#include "desktop/form_widgets.h"

namespace wortlex {

/// What holds for all above a table with a column for each kind of vessel.
QLayout* arrange_bottling(const FormWidgets& widgets);

} // namespace wortlex
