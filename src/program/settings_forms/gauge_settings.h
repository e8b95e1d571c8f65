// Settings of the hydrometer and the refractometers.
#pragma once

#include "base/ports/prompts.h"
#include "forms/form.h"
#include "settings/system_settings.h"

namespace wortlex {

/// Asks, and puts back what the program was delivered with.
void reset_gauges(SystemSettings& image, Prompts& prompts);

void gauge_settings_form(Form& form, SystemSettings& image, Prompts& prompts,
                         std::function<void()> help = nullptr);

} // namespace wortlex
