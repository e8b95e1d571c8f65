// Settings of the screen: colours by area, pictures on buttons and on the main screen, spikes in charts.
#pragma once

#include "base/ports/prompts.h"
#include "forms/form.h"
#include "settings/settings.h"

#include <vector>

namespace wortlex {

/// What the dialog needs beside the settings.
struct ScreenSettingsUse {
    Prompts& prompts;
    std::uint8_t art_in_use = 0;        ///< the scheme that the program has started with
    std::vector<std::string> art_names; ///< of all schemes, in the order of their numbers
    std::function<void()> recoloured;   ///< told at once, for the windows that are open
    std::function<void()> help;
};

/// The colours are edited in `working`, so that they show at once, all else in `image`. Cancel puts back
/// both.
void screen_settings_form(Form& form, SystemSettings& image, Settings& working, const ScreenSettingsUse& use);

} // namespace wortlex
