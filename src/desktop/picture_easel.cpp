#include "desktop/picture_easel.h"

#include "desktop/painter_surface.h"

#include <QImage>

#include <span>

namespace wortlex {

Pixels PictureEasel::drawn(Extent size, const std::function<void(Surface&)>& draw) {
    QImage image(size.width, size.height, QImage::Format_RGB32); // what is painted on fastest
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        PainterSurface surface(painter, size);
        draw(surface);
    }
    Pixels pixels{size.width, size.height, {}};
    pixels.rgb.reserve(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height) * 3);
    for (int row = 0; row < size.height; ++row) {
        const void* const bytes = image.constScanLine(row); // four a dot
        const std::span line(static_cast<const QRgb*>(bytes), static_cast<std::size_t>(size.width));
        for (const auto dot : line)
            for (const int part : {qRed(dot), qGreen(dot), qBlue(dot)})
                pixels.rgb.push_back(static_cast<std::uint8_t>(part));
    }
    return pixels;
}

} // namespace wortlex
