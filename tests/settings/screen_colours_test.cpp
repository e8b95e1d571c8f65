#include "settings/screen_colours.h"

#include <gtest/gtest.h>

#include <cmath>

namespace wortlex {
namespace {

// The relative luminance of the Web Content Accessibility Guidelines.
double luminance(std::uint32_t colour) {
    double sum = 0;
    for (const auto& [shift, weight] :
         {std::pair(0U, 0.2126), std::pair(8U, 0.7152), std::pair(16U, 0.0722)}) {
        const double part = (colour >> shift & 0xFF) / 255.0;
        sum += weight * (part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4));
    }
    return sum;
}

double contrast(std::uint32_t one, std::uint32_t other) {
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

TEST(ScreenColours, CanBeReadInEveryPalette) {
    ASSERT_NEAR(contrast(0, 0xFFFFFF), 21, 1e-9);
    for (const auto preset : {ColourPreset::warm, ColourPreset::dark}) {
        const auto colours = colours_of(preset);
        for (std::size_t area = 0; area < color_areas; ++area)
            EXPECT_GE(contrast(colours.foreground[area], colours.background[area]), 4.5)
                << static_cast<int>(preset) << ' ' << area;
    }
}

TEST(ScreenColours, TellThePresetFromTheBrewersOwn) {
    auto settings = WriteDefaultSettings();
    EXPECT_EQ(preset_of(settings), ColourPreset::built_in);
    set_colours(settings, colours_of(ColourPreset::desktop));
    EXPECT_EQ(preset_of(settings), ColourPreset::desktop);
    settings.background[6] = 0x123456;
    EXPECT_EQ(preset_of(settings), std::nullopt);
}

} // namespace
} // namespace wortlex
