#include "documents/forms/style_band.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace wortlex {
namespace {

// A ground of its own, so that the mark shows in a dark window too.
constexpr std::uint32_t ground_colour = 0x00F4F4F4;
constexpr std::uint32_t scale_colour = 0x00D0D0D0;
constexpr std::uint32_t range_colour = 0x0092C48F;
constexpr std::uint32_t inside_colour = 0x00303030;
constexpr std::uint32_t outside_colour = 0x002020C8;

void fill(Surface& surface, const Box& box, std::uint32_t colour) {
    surface.set_pen({.colour = colour, .width = 1, .style = PenStyle::none});
    surface.set_brush(colour);
    surface.rectangle(box);
}

void draw_mark(Surface& surface, double place, std::uint32_t colour) {
    const auto [width, height] = surface.size();
    const int half = std::max(height / 3, 2);
    const int x = std::clamp(static_cast<int>(std::lround(place * width)), half, width - 1 - half);
    surface.set_pen({.colour = colour, .width = 1, .style = PenStyle::solid});
    surface.set_brush(colour);
    const std::array mark = {Point{x - half, 0}, Point{x + half, 0}, Point{x, height - 1}};
    surface.polygon(mark);
}

} // namespace

std::optional<double> place_on_band(const StyleBand& band) {
    const double width = double{band.high} - band.low;
    if (!(width > 0) || !std::isfinite(width) || !std::isfinite(band.value)) return std::nullopt;
    return std::clamp(0.25 + 0.5 * (double{band.value} - band.low) / width, 0.0, 1.0);
}

bool is_in_style(const StyleBand& band) {
    return band.value >= band.low && band.value <= band.high;
}

void draw_style_band(Surface& surface, const StyleBand& band) {
    const auto [width, height] = surface.size();
    const int track = std::max(height / 4, 1);
    fill(surface, {0, 0, width, height}, ground_colour);
    fill(surface, {0, track, width, height - track}, scale_colour);
    const auto place = place_on_band(band);
    if (!place) return;
    fill(surface, {width / 4, track, width * 3 / 4, height - track}, range_colour);
    draw_mark(surface, *place, is_in_style(band) ? inside_colour : outside_colour);
}

} // namespace wortlex
