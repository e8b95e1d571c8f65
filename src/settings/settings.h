// The working values: what the rest of the program reads.
#pragma once

#include "settings/system_settings.h"

#include <string_view>

namespace wortlex {

/// A repaired copy of the image and what is derived from it. All formulae read this one struct.
struct Settings : SystemSettings {
    EfficiencyMode efficiency_mode{};   ///< what a new recipe takes
    std::int16_t first_wort_change = 0; ///< percent, the low half of its field
    std::int16_t mash_hop_change = 0;   ///< percent, likewise
    float heat_capacity = 0;            ///< of malt, against water
    float thick_ratio = 0;              ///< decoctions, quarts per pound
    float medium_ratio = 0;
    float thin_ratio = 0;
    std::int32_t global_alpha = 0;        ///< 0 to 255
    std::int32_t global_alpha_adjust = 0; ///< added to the alpha of the colour table
    std::string_view alpha_source;        ///< the name of where alpha comes from
};

/// Repairs the image and copies it into the working values; the screen colours only `with_colours`.
void ApplySettings(SystemSettings& image, Settings& working, bool with_colours);

/// The same from a dialog, whose colours live in the working values: they are copied into the image.
/// The caller saves, where it was asked to.
void ApplyDialogSettings(SystemSettings& image, Settings& working);

/// The working values of an image, for a program that has just started.
Settings settings_from(SystemSettings& image);

} // namespace wortlex
