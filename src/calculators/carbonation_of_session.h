// The carbonation of a session's bottles, kegs or tanks: the calculator on the figures of the bottling log.
#pragma once

#include "calculators/carbonation_calculator.h"

namespace wortlex {

/// A column of the log (0 to 2) with the level desired.
CarbonationCalculator carbonation_of(const BottlingLog& log, std::size_t column);

/// The priming that it takes, at a level that can be changed.
void natural_carbonation_form(Form& form, CarbonationCalculator& calculator, const Settings& settings);

/// The pressure that it takes.
void forced_carbonation_form(Form& form, const CarbonationCalculator& calculator, const Settings& settings);

} // namespace wortlex
