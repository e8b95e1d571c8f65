// The settings of the mash system and of evaporation as a form.
#pragma once

#include "forms/form.h"

namespace wortlex {

/// Edits the image; Cancel puts it back. Heat capacity and decoction ratios reach it with OK.
void mash_settings_form(Form& form, SystemSettings& image, std::function<void()> help = {});

} // namespace wortlex
