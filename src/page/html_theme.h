// The colours and measures of HTML pages, and their file.
#pragma once

#include "base/layout.h"

#include <cstdint>
#include <string>

namespace wortlex {

/// Colours are 0x00BBGGRR.
struct HtmlTheme {
    Text<255> name;
    std::uint32_t second_background = 0xFFFFFF; ///< follows the body's background; no page shows it
    std::uint32_t body_text = 0;
    std::uint32_t heading_background = 0;
    std::uint32_t column_heading_background = 0;
    std::uint32_t field_background = 0;
    std::uint32_t descriptor_background = 0;
    std::uint32_t body_background = 0xFFFFFF;
    std::uint32_t heading_text = 0;
    std::uint32_t column_heading_text = 0;
    std::uint32_t field_text = 0;
    std::uint32_t descriptor_text = 0;
    std::uint32_t border = 0;
    std::array<std::byte, 28> reserved_colours{};
    std::int32_t cell_spacing = 0;
    std::int32_t cell_padding = 2;
    std::int32_t borders = 1;   ///< 0 or 1: whether tables have them
    std::int32_t font_size = 1; ///< 2: large
    std::array<std::byte, 16> reserved{};

    bool operator==(const HtmlTheme&) const = default;
};

constexpr auto html_theme_layout = layout<HtmlTheme, 363>(
    at(0, &HtmlTheme::name), at(255, &HtmlTheme::second_background), at(259, &HtmlTheme::body_text),
    at(263, &HtmlTheme::heading_background), at(267, &HtmlTheme::column_heading_background),
    at(271, &HtmlTheme::field_background), at(275, &HtmlTheme::descriptor_background),
    at(279, &HtmlTheme::body_background), at(283, &HtmlTheme::heading_text),
    at(287, &HtmlTheme::column_heading_text), at(291, &HtmlTheme::field_text),
    at(295, &HtmlTheme::descriptor_text), at(299, &HtmlTheme::border), at(303, &HtmlTheme::reserved_colours),
    at(331, &HtmlTheme::cell_spacing), at(335, &HtmlTheme::cell_padding), at(339, &HtmlTheme::borders),
    at(343, &HtmlTheme::font_size), at(347, &HtmlTheme::reserved));

/// The six themes that are built in, in the order of their buttons.
enum class BuiltInTheme { mint, grey_ghost, wheat, the_blues, red_eye, black_and_white };

/// Turns `theme` into a built-in one; the reserved bytes stay.
void take_built_in(HtmlTheme& theme, BuiltInTheme which);
/// "Wortlex Default": black on white and greys.
HtmlTheme neutral_theme();

/// The brewer's own default in the data folder, or mint.
HtmlTheme LoadDefaultTheme(const std::string& data_folder);
bool SaveDefaultTheme(const std::string& data_folder, const HtmlTheme& theme);
/// A file that cannot be opened gives the neutral theme and false; a short one leaves the rest as it was.
bool LoadTheme(const std::string& path, HtmlTheme& theme);
bool SaveTheme(const std::string& path, const HtmlTheme& theme);

} // namespace wortlex
