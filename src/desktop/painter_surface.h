// A `Surface` on anything that the toolkit paints on: a widget, an image, a printed page.
#pragma once

#include "base/ports/surface.h"

#include <QPainter>

namespace wortlex {

class PainterSurface : public Surface {
public:
    /// `size` in pixels of the painter's coordinates.
    PainterSurface(QPainter& painter, Extent size) : painter_(painter), size_(size) {}

    void set_pen(const Pen& pen) override;
    void set_brush(std::optional<std::uint32_t> colour) override;
    void set_font(const Font& font) override;
    void set_text_colour(std::uint32_t colour) override { text_colour_ = colour; }
    void move_to(Point to) override { at_ = to; }
    void line_to(Point to) override;
    void polyline(std::span<const Point> points) override;
    void polygon(std::span<const Point> points) override;
    void rectangle(const Box& box) override;
    void ellipse(const Box& box) override;
    void text(Point at, std::string_view text) override;
    void tabbed_text(Point at, std::string_view text, std::span<const int> stops) override;
    Extent text_extent(std::string_view text) const override;
    Extent size() const override { return size_; }

private:
    QPainter& painter_;
    Extent size_;
    Point at_;
    std::uint32_t text_colour_ = 0;
};

} // namespace wortlex
