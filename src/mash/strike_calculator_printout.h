// The page of the dough-in strike water.
#pragma once

#include "mash/strike_calculator.h"
#include "page/page.h"

namespace wortlex {

/// Both units of everything, the figures as they stand.
PrintRequest strike_calculator_printout(const StrikeCalculator& calculator, const Settings& settings);

} // namespace wortlex
