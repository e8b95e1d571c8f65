#include "desktop/painter_surface.h"

#include "desktop/colours.h"
#include "desktop/qt_text.h"

#include <QFontMetrics>
#include <QPolygon>

namespace wortlex {
namespace {

QPolygon polygon_of(std::span<const Point> points) {
    QPolygon polygon;
    polygon.reserve(static_cast<qsizetype>(points.size()));
    for (const auto& point : points) polygon << QPoint(point.x, point.y);
    return polygon;
}

// The right and bottom edges of a box are its last pixels but one, as brush and pen share them.
QRect rect_of(const Box& box) {
    return {QPoint(box.left, box.top), QPoint(box.right - 2, box.bottom - 2)};
}

Qt::PenStyle style_of(PenStyle style) {
    switch (style) {
    case PenStyle::dash:
        return Qt::DashLine;
    case PenStyle::dot:
        return Qt::DotLine;
    case PenStyle::none:
        return Qt::NoPen;
    default:
        return Qt::SolidLine;
    }
}

} // namespace

void PainterSurface::set_pen(const Pen& pen) {
    painter_.setPen(QPen(colour_of(pen.colour), pen.width, style_of(pen.style)));
}

void PainterSurface::set_brush(std::optional<std::uint32_t> colour) {
    painter_.setBrush(colour ? QBrush(colour_of(*colour)) : QBrush(Qt::NoBrush));
}

void PainterSurface::set_font(const Font& font) {
    QFont wanted(string_of(font.face));
    if (font.cell_height > 0) wanted.setPixelSize(font.cell_height);
    wanted.setWeight(static_cast<QFont::Weight>(font.weight));
    wanted.setItalic(font.italic);
    if (font.cell_width > 0) {
        const int natural = QFontMetrics(wanted).averageCharWidth();
        if (natural > 0) wanted.setStretch(100 * font.cell_width / natural);
    }
    painter_.setFont(wanted);
}

void PainterSurface::line_to(Point to) {
    painter_.drawLine(at_.x, at_.y, to.x, to.y);
    at_ = to;
}

void PainterSurface::polyline(std::span<const Point> points) {
    painter_.drawPolyline(polygon_of(points));
}

void PainterSurface::polygon(std::span<const Point> points) {
    painter_.drawPolygon(polygon_of(points));
}

void PainterSurface::rectangle(const Box& box) {
    painter_.drawRect(rect_of(box));
}

void PainterSurface::ellipse(const Box& box) {
    painter_.drawEllipse(rect_of(box));
}

void PainterSurface::text(Point at, std::string_view text) {
    painter_.save();
    painter_.setPen(colour_of(text_colour_));
    painter_.drawText(at.x, at.y + painter_.fontMetrics().ascent(), string_of(text));
    painter_.restore();
}

void PainterSurface::tabbed_text(Point at, std::string_view text, std::span<const int> stops) {
    int x = at.x;
    std::size_t begin = 0;
    while (begin <= text.size()) {
        const auto end = std::min(text.find('\t', begin), text.size());
        const auto piece = text.substr(begin, end - begin);
        this->text({x, at.y}, piece);
        x += text_extent(piece).width;
        const auto next = std::find_if(stops.begin(), stops.end(), [&](int stop) { return at.x + stop > x; });
        if (next != stops.end()) x = at.x + *next;
        begin = end + 1;
    }
}

Extent PainterSurface::text_extent(std::string_view text) const {
    const auto metrics = painter_.fontMetrics();
    return {metrics.horizontalAdvance(string_of(text)), metrics.height()};
}

} // namespace wortlex
