// The Pre-Boil Calculator: what must be in the kettle for what is to be left of it.
#pragma once

#include "documents/session_figures.h"
#include "forms/form.h"
#include "page/page.h"

namespace wortlex {

/// Whose boil it is. What it names must outlive its form.
struct PreBoilSubject {
    const BrewDocument& document;
    std::function<float()> rate; ///< of evaporation: percent or gallons per hour, by the settings
    const Settings& settings;
    const WaterNeeds* water = nullptr; ///< of a session: the kettle that its water plan fills is shown too
};

struct PreBoilActions {
    std::function<void()> print; ///< empty, as the next: disabled
    std::function<void()> help;
};

void pre_boil_form(Form& form, const PreBoilSubject& subject, PreBoilActions actions);

/// The page of the calculator, while all stands as it is.
PrintRequest pre_boil_printout(const PreBoilSubject& subject);

} // namespace wortlex
