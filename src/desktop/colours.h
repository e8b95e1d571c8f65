// The user's colours by area of the screen.
#pragma once

#include "settings/system_settings.h"

#include <QColor>
#include <QWidget>

namespace wortlex {

/// From 0x00BBGGRR.
QColor colour_of(std::uint32_t reference);

/// Gives a field the pair of its area: text and ground always together. A disabled field keeps the desktop's
/// greys.
void apply_colours(QWidget& field, ColorArea area, const SystemSettings& settings);

} // namespace wortlex
