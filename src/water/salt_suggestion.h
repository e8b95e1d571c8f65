// What the button Suggest proposes, and its form.
#pragma once

#include "brewing/salt_proposal.h"
#include "forms/form.h"

namespace wortlex {

struct SaltSuggestion {
    bool with_chalk = false;
    SaltProposal proposal;
};

/// Makes a proposal for the difference, and another as chalk is wanted or not. Both must outlive the form.
void salt_suggestion_form(Form& form, const WaterAnalysis& analysis, SaltSuggestion& suggestion);

/// Takes the proposed rates for the six salts.
void take_proposal(WaterAnalysis& analysis, const SaltProposal& proposal);

} // namespace wortlex
