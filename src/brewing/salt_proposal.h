// The salts that come closest to what a water lacks.
#pragma once

#include "brewing/salts.h"

namespace wortlex {

inline constexpr double proposed_step = 0.05;

/// Rates in the order of `salt_effects`, and what they leave of the difference, in the order of `ions`.
struct SaltProposal {
    std::array<float, salt_effects.size()> rates{};
    std::array<float, ions.size()> remaining{};
};

/// Least squares over the six ions without negative rates, each to the nearest 0.05 grams per gallon. Chalk,
/// which hardly dissolves, only if wanted.
SaltProposal propose_salts(const WaterRecord& difference, bool with_chalk);

} // namespace wortlex
