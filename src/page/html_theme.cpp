#include "page/html_theme.h"

#include "base/files.h"

namespace wortlex {
namespace {

constexpr std::string_view default_file = "WlxHTML.wxc";

// From the colour as HTML spells it, 0xRRGGBB.
constexpr std::uint32_t rgb(std::uint32_t colour) {
    return (colour & 0xFF) << 16 | (colour & 0xFF00) | colour >> 16;
}

struct BuiltIn {
    const char* name = "";
    std::uint32_t body = 0, heading = 0, column_heading = 0, descriptor = 0, field = 0;
    std::uint32_t heading_text = 0, column_heading_text = 0, descriptor_text = 0, field_text = 0;
};

constexpr std::array<BuiltIn, 6> built_in = {{{"Mint", 0xFFFFFF, 0x7E9A85, 0xA3B8A8, 0xCED9D0, 0xEEEEEE},
                                              {.name = "Grey Ghost",
                                               .body = 0xC0C0C0,
                                               .heading = 0xC0C0C0,
                                               .column_heading = 0xB4B4B4,
                                               .descriptor = 0x737373,
                                               .field = 0x5A585A,
                                               .descriptor_text = 0xFFFFFF,
                                               .field_text = 0xFFFFFF},
                                              {"Wheat", 0xFFFFFF, 0xCEC126, 0xE2CB23, 0xEFE392, 0xF4EFC6},
                                              {.name = "The Blues",
                                               .body = 0xFFFFFF,
                                               .heading = 0x0080C0,
                                               .column_heading = 0x8080C0,
                                               .descriptor = 0xCEE7FF,
                                               .field = 0x8AC5FF,
                                               .heading_text = 0xFFFFFF,
                                               .column_heading_text = 0xFFFFFF},
                                              {.name = "Red Eye",
                                               .body = 0xFFFFFF,
                                               .heading = 0x800000,
                                               .column_heading = 0xFF0000,
                                               .descriptor = 0x804040,
                                               .field = 0x9F0000,
                                               .heading_text = 0xFFFFFF,
                                               .descriptor_text = 0xFFFFFF,
                                               .field_text = 0xFFFF00},
                                              {.name = "Black And White",
                                               .body = 0xFFFFFF,
                                               .heading = 0x000000,
                                               .column_heading = 0xC0C0C0,
                                               .descriptor = 0xFFFFFF,
                                               .field = 0xFFFFFF,
                                               .heading_text = 0xFFFFFF}}};

} // namespace

void take_built_in(HtmlTheme& theme, BuiltInTheme which) {
    const auto& from = built_in.at(static_cast<std::size_t>(which));
    theme.name.assign(std::string("Wortlex Default - ") + from.name);
    theme.body_background = theme.second_background = rgb(from.body);
    theme.heading_background = rgb(from.heading);
    theme.column_heading_background = rgb(from.column_heading);
    theme.descriptor_background = rgb(from.descriptor);
    theme.field_background = rgb(from.field);
    theme.heading_text = rgb(from.heading_text);
    theme.column_heading_text = rgb(from.column_heading_text);
    theme.descriptor_text = rgb(from.descriptor_text);
    theme.field_text = rgb(from.field_text);
    theme.border = theme.body_text = 0;
    theme.cell_spacing = 0;
    theme.cell_padding = 2;
    theme.borders = theme.font_size = 1;
}

HtmlTheme neutral_theme() {
    HtmlTheme theme;
    theme.name.assign("Wortlex Default");
    theme.heading_background = theme.column_heading_background = theme.descriptor_background = 0x808080;
    theme.field_background = 0xC8C8C8;
    return theme;
}

HtmlTheme LoadDefaultTheme(const std::string& data_folder) {
    HtmlTheme theme;
    take_built_in(theme, BuiltInTheme::mint);
    const auto file = read_file(find_data_file(data_folder, default_file), html_theme_layout.size);
    if (file) ByteReader(*file).read(theme, html_theme_layout);
    return theme;
}

bool SaveDefaultTheme(const std::string& data_folder, const HtmlTheme& theme) {
    return SaveTheme(find_data_file(data_folder, default_file), theme);
}

bool LoadTheme(const std::string& path, HtmlTheme& theme) {
    const auto file = read_file(path, html_theme_layout.size);
    if (!file) {
        theme = neutral_theme();
        return false;
    }
    ByteReader(*file).read(theme, html_theme_layout);
    return true;
}

bool SaveTheme(const std::string& path, const HtmlTheme& theme) {
    return save_atomically(path, encoded(theme, html_theme_layout));
}

} // namespace wortlex
