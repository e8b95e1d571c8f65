// The settings of measurements, sizes and precision as a form.
#pragma once

#include "forms/form.h"

namespace wortlex {

/// Edits the image; Cancel puts it back. Sizes keep what they are in store when a unit changes.
void measure_settings_form(Form& form, SystemSettings& image, std::function<void()> help = {});

} // namespace wortlex
