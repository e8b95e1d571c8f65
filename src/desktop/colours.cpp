#include "desktop/colours.h"

#include "settings/screen_colours.h"

#include <QApplication>
#include <QPalette>

namespace wortlex {
namespace {

constexpr int shade_percent = 6; // of every other row of a list

bool is_only_read(ColorArea area) {
    return area == ColorArea::style_guidelines || area == ColorArea::shown_text ||
           area == ColorArea::shown_numbers;
}

QColor own_or_of_desktop(std::uint32_t colour, QPalette::ColorRole role) {
    return is_of_desktop(colour) ? QApplication::palette().color(QPalette::Active, role) : colour_of(colour);
}

} // namespace

QColor colour_of(std::uint32_t reference) {
    return {static_cast<int>(reference & 0xFF), static_cast<int>(reference >> 8 & 0xFF),
            static_cast<int>(reference >> 16 & 0xFF)};
}

void apply_colours(QWidget& field, ColorArea area, const SystemSettings& settings) {
    const auto pair = static_cast<std::size_t>(area);
    const bool is_read = is_only_read(area);
    const auto text =
        own_or_of_desktop(settings.foreground[pair], is_read ? QPalette::WindowText : QPalette::Text);
    const auto ground =
        own_or_of_desktop(settings.background[pair], is_read ? QPalette::Window : QPalette::Base);
    auto palette = field.palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Text, text);
        palette.setColor(group, QPalette::Base, ground);
    }
    palette.setColor(QPalette::AlternateBase, toned_ground(palette, shade_percent));
    palette.setColor(QPalette::Disabled, QPalette::Base,
                     QApplication::palette().color(QPalette::Disabled, QPalette::Window));
    field.setPalette(palette);
}

bool is_dark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < 128;
}

QColor warning_colour(const QPalette& palette) {
    return is_dark(palette) ? QColor(0xFF, 0x9E, 0x80) : QColor(0xB0, 0x00, 0x20);
}

QColor toned_ground(const QPalette& palette, int percent) {
    const auto base = palette.color(QPalette::Active, QPalette::Base);
    const auto text = palette.color(QPalette::Active, QPalette::Text);
    const auto mixed = [percent](int ground, int letters) {
        return ((100 - percent) * ground + percent * letters) / 100;
    };
    return {mixed(base.red(), text.red()), mixed(base.green(), text.green()),
            mixed(base.blue(), text.blue())};
}

} // namespace wortlex
