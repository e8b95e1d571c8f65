#include "desktop/colours.h"

#include <QPalette>

namespace wortlex {

QColor colour_of(std::uint32_t reference) {
    return {static_cast<int>(reference & 0xFF), static_cast<int>(reference >> 8 & 0xFF),
            static_cast<int>(reference >> 16 & 0xFF)};
}

void apply_colours(QWidget& field, ColorArea area, const SystemSettings& settings) {
    const auto pair = static_cast<std::size_t>(area);
    const auto text = colour_of(settings.foreground[pair]);
    const auto ground = colour_of(settings.background[pair]);
    auto palette = field.palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Text, text);
        palette.setColor(group, QPalette::Base, ground);
        palette.setColor(group, QPalette::AlternateBase, ground);
        palette.setColor(group, QPalette::PlaceholderText, text);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, palette.color(QPalette::Disabled, QPalette::Window));
    field.setPalette(palette);
}

} // namespace wortlex
