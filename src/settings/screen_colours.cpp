#include "settings/screen_colours.h"

namespace wortlex {
namespace {

// In the order of the areas: guidelines, texts, numbers, ingredients, notes, entries, picks.
constexpr ScreenColours warm = {{0x102840, 0x102840, 0x102840, 0x102040, 0x102840, 0x18185C, 0x102040},
                                {0xC8E0F4, 0xD0E4F4, 0xD0E4F4, 0xE4F2FC, 0xDCF4FC, 0xF4FAFF, 0xE4F2FC}};
constexpr ScreenColours dark = {{0xA0E0F0, 0xD0D8E0, 0xE8ECF0, 0xE8ECF0, 0xB8E8F8, 0xFFFFFF, 0xE8ECF0},
                                {0x302C28, 0x2C2C2C, 0x2C2C2C, 0x242220, 0x202830, 0x181818, 0x242220}};

ScreenColours desktop_colours() {
    ScreenColours colours{};
    colours.foreground.fill(desktop_mark);
    colours.background.fill(desktop_mark | 0xFFFFFF);
    return colours;
}

} // namespace

ScreenColours colours_of(ColourPreset preset) {
    switch (preset) {
    case ColourPreset::desktop:
        return desktop_colours();
    case ColourPreset::warm:
        return warm;
    case ColourPreset::dark:
        return dark;
    default:
        return colours_of(WriteDefaultSettings());
    }
}

ScreenColours colours_of(const SystemSettings& settings) {
    return {settings.foreground, settings.background};
}

void set_colours(SystemSettings& settings, const ScreenColours& colours) {
    settings.foreground = colours.foreground;
    settings.background = colours.background;
}

std::optional<ColourPreset> preset_of(const SystemSettings& settings) {
    for (std::size_t i = 0; i < colour_presets; ++i)
        if (const auto preset = static_cast<ColourPreset>(i); colours_of(preset) == colours_of(settings))
            return preset;
    return std::nullopt;
}

} // namespace wortlex
