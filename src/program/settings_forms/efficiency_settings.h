// The settings of the brewhouse efficiency as two forms: what malts show, and how gravity is predicted.
#pragma once

#include "forms/form.h"

namespace wortlex {

struct EfficiencyButtons {
    std::function<void()> advanced, help;
};

/// Edits the image; Cancel puts it back.
void efficiency_settings_form(Form& form, SystemSettings& image, const EfficiencyButtons& buttons);

/// The same, opened by `EfficiencyButtons::advanced`.
void advanced_efficiency_form(Form& form, SystemSettings& image, std::function<void()> help = {});

} // namespace wortlex
