// The page that the Hop IBU Calculator prints.
#pragma once

#include "brewing/hop_bitterness.h"
#include "page/page.h"

namespace wortlex {

/// `hop_name` is UTF-8. The formula is that of `settings`.
PrintRequest ibu_calculator_printout(const HopCalculator& calculator, const std::string& hop_name,
                                     const Settings& settings);

} // namespace wortlex
