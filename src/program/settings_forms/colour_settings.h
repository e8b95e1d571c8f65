// Settings of beer colour: formula, unit, and how swatches are painted.
#pragma once

#include "brewing/beer_colour.h"
#include "forms/form.h"

namespace wortlex {

void colour_settings_form(Form& form, SystemSettings& image, std::function<void()> calibrate,
                          std::function<void()> help = nullptr);

/// The global alpha, 1 to 255, and the global adjust, -100 to 100, share a field of the settings.
std::int32_t global_alpha(const SystemSettings& image);
std::int32_t global_adjust(const SystemSettings& image);
void set_global_alpha(SystemSettings& image, std::int32_t alpha);
void set_global_adjust(SystemSettings& image, std::int32_t adjust);

struct ColourCalibrationUse {
    const ColorTable& table;             ///< the live one
    std::function<void()> edit_table;    ///< opens the utility
    std::function<void()> restore_table; ///< on Cancel: from where it was loaded at the start
};

void colour_calibration_form(Form& form, SystemSettings& image, const ColourCalibrationUse& use);

} // namespace wortlex
