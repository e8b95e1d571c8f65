// The stock of one entry: what comes in, what goes out.
#pragma once

#include "base/ports/prompts.h"
#include "forms/form.h"

namespace wortlex {

struct InventorySubject {
    std::string name;
    std::string unit;
    float& stock; ///< in the stored unit; a booking may change it while the form is open
    std::function<float(float)> to_shown;
    std::function<float(float)> from_shown;
    float most_typed = 10000;
};

/// An amount to add or take, in the unit shown; the stock never falls below 0. `prompts` and the
/// stock must outlive the form.
void inventory_form(Form& form, const InventorySubject& subject, Prompts& prompts);

} // namespace wortlex
