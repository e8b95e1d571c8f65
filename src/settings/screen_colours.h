// Whole sets of colours for the areas of the screen.
#pragma once

#include "settings/system_settings.h"

#include <optional>

namespace wortlex {

/// A colour with this byte set is that of the desktop, whatever it is there. No chosen colour, 0x00BBGGRR,
/// has it; who knows nothing of it reads black on white.
inline constexpr std::uint32_t desktop_mark = 0xFF000000;
constexpr bool is_of_desktop(std::uint32_t colour) {
    return (colour & desktop_mark) != 0;
}

using AreaColours = std::array<std::uint32_t, color_areas>;

struct ScreenColours {
    AreaColours foreground, background;
    bool operator==(const ScreenColours&) const = default;
};

enum class ColourPreset : std::int32_t { built_in, desktop, warm, dark };
inline constexpr std::size_t colour_presets = 4;

ScreenColours colours_of(ColourPreset preset);
ScreenColours colours_of(const SystemSettings& settings);
void set_colours(SystemSettings& settings, const ScreenColours& colours);

/// Nothing where the brewer has chosen colours of his own.
std::optional<ColourPreset> preset_of(const SystemSettings& settings);

} // namespace wortlex
