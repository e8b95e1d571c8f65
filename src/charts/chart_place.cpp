#include "charts/chart_place.h"

#include "base/number.h"

#include <algorithm>

namespace wortlex {
namespace {

// Takes a drawing of pixels to its place on the paper, made larger.
class PlacedSurface : public Surface {
public:
    PlacedSurface(Surface& paper, Point offset, double scale)
        : paper_(paper), offset_(offset), scale_(scale) {}

    void set_pen(const Pen& pen) override { paper_.set_pen({pen.colour, large(pen.width), pen.style}); }
    void set_brush(std::optional<std::uint32_t> colour) override { paper_.set_brush(colour); }
    void set_font(const Font& font) override {
        auto larger = font;
        larger.cell_height = large(font.cell_height);
        paper_.set_font(larger);
    }
    void set_text_colour(std::uint32_t colour) override { paper_.set_text_colour(colour); }
    void move_to(Point to) override { paper_.move_to(placed(to)); }
    void line_to(Point to) override { paper_.line_to(placed(to)); }
    void polyline(std::span<const Point> points) override { paper_.polyline(placed(points)); }
    void polygon(std::span<const Point> points) override { paper_.polygon(placed(points)); }
    void rectangle(const Box& box) override { paper_.rectangle(placed(box)); }
    void ellipse(const Box& box) override { paper_.ellipse(placed(box)); }
    void text(Point at, std::string_view text) override { paper_.text(placed(at), text); }
    void tabbed_text(Point at, std::string_view text, std::span<const int> stops) override {
        std::vector<int> larger;
        for (const int stop : stops) larger.push_back(large(stop));
        paper_.tabbed_text(placed(at), text, larger);
    }
    Extent text_extent(std::string_view text) const override {
        const auto [width, height] = paper_.text_extent(text);
        return {truncate(width / scale_), truncate(height / scale_)};
    }
    Extent size() const override { return paper_.size(); }

private:
    int large(int pixels) const { return std::max(1, truncate(pixels * scale_)); }
    Point placed(Point at) const {
        return {offset_.x + truncate(at.x * scale_), offset_.y + truncate(at.y * scale_)};
    }
    Box placed(const Box& box) const {
        const auto [left, top] = placed(Point{box.left, box.top});
        const auto [right, bottom] = placed(Point{box.right, box.bottom});
        return {left, top, right, bottom};
    }
    std::vector<Point> placed(std::span<const Point> points) const {
        std::vector<Point> all;
        for (const auto& point : points) all.push_back(placed(point));
        return all;
    }

    Surface& paper_;
    Point offset_;
    double scale_;
};

} // namespace

void draw_in_place(const ChartPlace& place, Extent chart, const std::function<void(Surface&)>& draw) {
    constexpr auto room = ChartPlace::units;
    const double scale = place.scale * std::min(static_cast<double>(room.width) / chart.width,
                                                static_cast<double>(room.height) / chart.height);
    const Point offset{place.offset.x + truncate((room.width * place.scale - chart.width * scale) / 2),
                       place.offset.y + truncate((room.height * place.scale - chart.height * scale) / 2)};
    PlacedSurface surface(place.surface, offset, scale);
    draw(surface);
}

} // namespace wortlex
