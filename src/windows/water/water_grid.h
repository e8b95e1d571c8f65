// The grid of a matched water: waters, salts and sums line by line, a column an ion.
#pragma once

#include "desktop/form_widgets.h"

namespace wortlex {

/// Lays the cells of a `water_calculator_form` out; the labels belong to `parent`.
QLayout* water_grid(const FormWidgets& widgets, QWidget& parent);

} // namespace wortlex
