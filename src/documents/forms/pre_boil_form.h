// The Pre-Boil Calculator: what must be in the kettle for what is to be left of it.
#pragma once

#include "documents/session_figures.h"
#include "forms/form.h"
#include "page/page.h"

namespace wortlex {

struct PreBoilActions {
    std::function<void()> print; ///< empty, as the next: disabled
    std::function<void()> help;
};

/// Shows the boil of `document`. `rate` is percent or gallons per hour, by the settings. A session shows one
/// more kettle in the same rows.
void pre_boil_form(Form& form, const BrewDocument& document, float rate, const Settings& settings);

/// A volume, and a gravity with its Plato, of the wort in one kettle.
void kettle_rows(Rows& rows, const std::string& key, const std::string& label, const PreBoil& kettle,
                 const Settings& settings);

/// To be added last.
void pre_boil_buttons(Form& form, PreBoilActions actions);

/// The page of the calculator, while document and settings stand as they are.
PrintRequest pre_boil_printout(const BrewDocument& document, float rate, const Settings& settings);

} // namespace wortlex
