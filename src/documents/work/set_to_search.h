// The search for weights under which a recipe comes to what is wanted of it.
#pragma once

#include "documents/work/set_to.h"

namespace wortlex {

using Weights = std::vector<double>;

/// Those that change for the sake of a target: of the malts in pounds, or for the bitterness of the hops in
/// ounces.
Weights changing_weights(const BrewDocument& document, SetToTarget target);

/// Puts them in place and works out what hangs on them.
void weigh(const OpenDocument& open, SetToTarget target, const Weights& weights);

/// Weighs a recipe, in which the lines of the wish are there, until it is as wanted. Why it cannot be, in
/// words; empty: it is.
std::string weigh_until_reached(const OpenDocument& trial, const SetToWish& wish);

} // namespace wortlex
