// A glass of beer.
#pragma once

#include <QPainter>
#include <QPixmap>

#include <cstdint>
#include <optional>

namespace wortlex {

/// A pint glass, wider at its brim, the beer below a head; without a colour it is empty.
void draw_glass(QPainter& painter, const QRectF& box, const std::optional<QColor>& beer);

/// The same beside a line of a widget's text; the colour is 0x00BBGGRR.
QPixmap glass_picture(std::optional<std::uint32_t> beer, const QWidget& widget);

} // namespace wortlex
