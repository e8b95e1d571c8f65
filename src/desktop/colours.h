// The user's colours by area of the screen.
#pragma once

#include "settings/system_settings.h"

#include <QColor>
#include <QWidget>

namespace wortlex {

/// From 0x00BBGGRR.
QColor colour_of(std::uint32_t reference);

/// Gives a field the pair of its area: text and ground always together. Where a pair is the desktop's, what
/// can only be read bears the ground of the window. A disabled field keeps the desktop's greys.
void apply_colours(QWidget& field, ColorArea area, const SystemSettings& settings);

/// Whether the desktop gives its windows a dark ground.
bool is_dark(const QPalette& palette);

/// Readable on that ground.
QColor warning_colour(const QPalette& palette);

/// The ground of a field with so many of a hundred parts of the text's colour in it: any pair shows it, and
/// the text keeps its contrast.
QColor toned_ground(const QPalette& palette, int percent);

} // namespace wortlex
