#include "desktop/glass.h"

#include "desktop/colours.h"

#include <QPainterPath>
#include <QPixmapCache>

namespace wortlex {

void draw_glass(QPainter& painter, const QRectF& box, const std::optional<QColor>& beer) {
    const qreal slope = box.width() / 7, head = box.height() / 6;
    const auto at = [&](qreal y) { return slope * (y - box.top()) / box.height(); };
    const auto part = [&](qreal top, qreal bottom) {
        QPainterPath path(QPointF(box.left() + at(top), top));
        path.lineTo(box.right() - at(top), top);
        path.lineTo(box.right() - at(bottom), bottom);
        path.lineTo(box.left() + at(bottom), bottom);
        path.closeSubpath();
        return path;
    };
    if (beer) {
        painter.fillPath(part(box.top() + 1, box.top() + head), QColor(250, 244, 228));
        painter.fillPath(part(box.top() + head, box.bottom()), *beer);
    }
    painter.strokePath(part(box.top(), box.bottom()), QPen(QColor(128, 128, 128), 1.2));
}

QSize glass_size(const QWidget& widget) {
    const int tall = widget.fontMetrics().height();
    return {tall * 5 / 7, tall};
}

QIcon glass_icon(std::optional<std::uint32_t> beer, const QWidget& widget) {
    const auto scale = widget.devicePixelRatioF();
    const auto size = glass_size(widget);
    const auto key =
        QStringLiteral("glass %1 %2 %3").arg(beer ? qint64{*beer} : -1).arg(size.height()).arg(scale);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = QPixmap(size * scale);
        picture.setDevicePixelRatio(scale);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        draw_glass(painter, QRectF(QPointF(0, 0), size).adjusted(1, 1, -1, -1),
                   beer ? std::optional(colour_of(*beer)) : std::nullopt);
        painter.end();
        QPixmapCache::insert(key, picture);
    }
    QIcon icon(picture);
    icon.addPixmap(picture, QIcon::Selected); // else it would take on the ground of the selection
    return icon;
}

} // namespace wortlex
