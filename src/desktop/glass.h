// A glass of beer.
#pragma once

#include <QIcon>
#include <QPainter>

#include <cstdint>
#include <optional>

namespace wortlex {

/// A pint glass, wider at its brim, the beer below a head; without a colour it is empty.
void draw_glass(QPainter& painter, const QRectF& box, const std::optional<QColor>& beer);

/// The same beside a line of a widget's text, also of a selected one; the colour is 0x00BBGGRR.
QIcon glass_icon(std::optional<std::uint32_t> beer, const QWidget& widget);
QSize glass_size(const QWidget& widget);

} // namespace wortlex
