// The page of the dough-in strike water.
#pragma once

#include "mash/strike_calculator.h"
#include "page/page.h"

namespace wortlex {

inline constexpr std::string_view tool_strike_title = "Wortlex - Dough In Strike Water Calculation";
inline constexpr std::string_view session_strike_title =
    "Wortlex - Brewing Session Dough In Strike Water Calculation";

/// Both units of everything, the figures as they stand.
PrintRequest strike_calculator_printout(const StrikeCalculator& calculator, const Settings& settings,
                                        std::string_view title = tool_strike_title);

} // namespace wortlex
