// The settings of hop calculations, utilization and storage as a form, and the one below it.
#pragma once

#include "forms/form.h"

namespace wortlex {

struct HopSettingsActions {
    /// Called whenever the user chooses Tinseth, also when it is chosen already.
    std::function<void()> adjust_tinseth;
    std::function<void()> help;
};

/// Edits the image; Cancel puts it back.
void hop_settings_form(Form& form, SystemSettings& image, const HopSettingsActions& actions);

/// The concentration factor, likewise.
void tinseth_form(Form& form, SystemSettings& image);

} // namespace wortlex
