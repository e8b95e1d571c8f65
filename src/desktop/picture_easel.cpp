#include "desktop/picture_easel.h"

#include "desktop/painter_surface.h"

#include <QImage>

namespace wortlex {

Pixels PictureEasel::drawn(Extent size, const std::function<void(Surface&)>& draw) {
    QImage image(size.width, size.height, QImage::Format_RGB32); // what is painted on fastest
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        PainterSurface surface(painter, size);
        draw(surface);
    }
    image.convertTo(QImage::Format_RGB888);
    Pixels pixels{size.width, size.height, {}};
    const auto row_bytes = static_cast<std::ptrdiff_t>(size.width) * 3; // the image's rows are longer
    for (int row = 0; row < size.height; ++row) {
        const auto* const from = image.constScanLine(row);
        pixels.rgb.insert(pixels.rgb.end(), from, from + row_bytes);
    }
    return pixels;
}

} // namespace wortlex
