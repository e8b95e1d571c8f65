// The Color Swatch Detail: one colour, and how it comes about.
#pragma once

#include "brewing/beer_colour.h"
#include "forms/form.h"

namespace wortlex {

struct ColorSwatch {
    const ColorTable& table;
    const Settings& settings;
    float srm = 0;
    std::int32_t alpha = 255; ///< 0 to 255, to be tried: the settings never hear of it
};

/// Another colour, with the alpha of the settings again.
void set_swatch(ColorSwatch& swatch, float srm);

/// 0x00BBGGRR.
std::uint32_t painted_swatch(const ColorSwatch& swatch);

/// How much of the paper shines through, in percent.
float transparency(std::int32_t alpha);

/// `swatch` must outlive the form and may change meanwhile.
void color_swatch_form(Form& form, ColorSwatch& swatch);

} // namespace wortlex
