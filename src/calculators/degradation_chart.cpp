#include "calculators/degradation_chart.h"

#include "base/number.h"

#include <algorithm>
#include <array>
#include <vector>

namespace wortlex {
namespace {

constexpr std::uint32_t black = 0x000000, white = 0xFFFFFF, pale = 0xDCDCDC, leaf = 0x2C7A1E, red = 0x1E1EC8;
constexpr std::string_view face = "Arial";

constexpr Extent area{500, 350};
constexpr int header_height = 156;
constexpr Box plot{60, 16, 480, 296}; // in the area
constexpr int steps_of_months = 12;
constexpr int mark_radius = 4;

// From months and percent to pixels.
struct Scale {
    int months = 12;
    int percent = 1;
    int top = 0; // of the area
};

Scale scale_of(const HopDegradation& hop, int top) {
    Scale scale{.percent = std::clamp(truncate(hop.start_alpha), 0, 100) + 1, .top = top};
    while (scale.months < hop.months && scale.months < 60) scale.months += 12;
    return scale;
}

int part_of(int length, double share) {
    return truncate(length * share + 0.5);
}

// Alpha that runs off the scale, as that of a damaged record may, stays at its end.
Point place(const Scale& scale, int month, double alpha) {
    const int x = plot.left + part_of(plot.right - plot.left, static_cast<double>(month) / scale.months);
    const int height = plot.bottom - plot.top;
    const int up = std::clamp(part_of(height, alpha / scale.percent), 0, height);
    return {x, scale.top + plot.bottom - up};
}

void draw_line(Surface& surface, Point from, Point to) {
    surface.move_to(from);
    surface.line_to(to);
}

// The pen fills, too: without one a rectangle would miss its last row and column.
void clear(Surface& surface, Extent extent) {
    surface.set_pen({white});
    surface.set_brush(white);
    surface.rectangle({0, 0, extent.width, extent.height});
}

void draw_header(Surface& surface, const HopDegradation& hop) {
    surface.set_font({.face = face, .cell_height = 17, .weight = 700});
    surface.text({16, 12}, "Wortlex Hop Time/Alpha Degradation Chart");
    surface.set_font({.face = face, .cell_height = 13});
    const std::array lines = {"Hop Name:\t" + hop.name,
                              "Start Alpha:\t" + formatted("%0.2f", hop.start_alpha),
                              "Temp Stored At:\t" + formatted("%0.2f F", hop.fahrenheit) +
                                  formatted("  %0.2f C", hop.celsius),
                              "Age In Months:\t" + formatted("%d", hop.months),
                              "Stored In :\t" + std::string(storage_words(hop.storage)),
                              "Adjusted Alpha Value:\t" + formatted("%0.2f", hop.adjusted_alpha)};
    constexpr std::array stops = {150};
    int y = 40;
    for (const auto& line : lines) {
        surface.tabbed_text({16, y}, line, stops);
        y += 19;
    }
}

void draw_percents(Surface& surface, const Scale& scale) {
    const int label_step = scale.percent < 18 ? 1 : 2;
    surface.set_pen({pale});
    for (int percent = 0; percent <= scale.percent; ++percent) {
        const auto at = place(scale, 0, percent);
        draw_line(surface, at, {plot.right, at.y});
        if (percent % label_step != 0) continue;
        const auto text = formatted("%d", percent);
        const auto extent = surface.text_extent(text);
        surface.text({at.x - 6 - extent.width, at.y - extent.height / 2}, text);
    }
}

void draw_months(Surface& surface, const Scale& scale) {
    surface.set_pen({pale});
    for (int month = 0; month <= scale.months; month += scale.months / steps_of_months) {
        const auto at = place(scale, month, 0);
        draw_line(surface, at, {at.x, scale.top + plot.top});
        const auto text = formatted("%d", month);
        surface.text({at.x - surface.text_extent(text).width / 2, at.y + 4}, text);
    }
}

void draw_axes(Surface& surface, int top) {
    surface.set_pen({black});
    draw_line(surface, {plot.left, top + plot.top}, {plot.left, top + plot.bottom});
    draw_line(surface, {plot.left, top + plot.bottom}, {plot.right, top + plot.bottom});
}

void draw_captions(Surface& surface, int top) {
    surface.set_font({.face = face, .cell_height = 14, .weight = 700});
    constexpr std::string_view word = "Alpha";
    const int height = surface.text_extent(word).height;
    int y = top + (plot.top + plot.bottom - height * static_cast<int>(word.size())) / 2;
    for (std::size_t letter = 0; letter < word.size(); ++letter, y += height) {
        const auto text = word.substr(letter, 1);
        surface.text({18 - surface.text_extent(text).width / 2, y}, text);
    }
    const auto extent = surface.text_extent("Months");
    surface.text({(plot.left + plot.right - extent.width) / 2, top + area.height - extent.height - 6},
                 "Months");
}

void draw_curve(Surface& surface, const Scale& scale, const HopDegradation& hop) {
    std::vector<Point> points = {place(scale, 0, hop.start_alpha)};
    for (int month = 1; month <= scale.months; ++month)
        points.push_back(place(scale, month, alpha_after(hop, month)));
    surface.set_pen({leaf, 2});
    surface.polyline(points);
}

void draw_mark(Surface& surface, const Scale& scale, const HopDegradation& hop) {
    const auto at = place(scale, hop.months, hop.adjusted_alpha);
    surface.set_pen({red});
    surface.set_brush(red);
    // The right and bottom edge of a box lie outside the circle.
    surface.ellipse({at.x - mark_radius, at.y - mark_radius, at.x + mark_radius + 1, at.y + mark_radius + 1});
}

} // namespace

Extent degradation_chart_size(bool with_header) {
    return {area.width, area.height + (with_header ? header_height : 0)};
}

void draw_degradation_chart(Surface& surface, const HopDegradation& hop, bool with_header) {
    const auto scale = scale_of(hop, with_header ? header_height : 0);
    clear(surface, degradation_chart_size(with_header));
    surface.set_text_colour(black);
    if (with_header) draw_header(surface, hop);
    surface.set_font({.face = face, .cell_height = 12});
    draw_percents(surface, scale);
    draw_months(surface, scale);
    draw_axes(surface, scale.top);
    draw_captions(surface, scale.top);
    draw_curve(surface, scale, hop);
    draw_mark(surface, scale, hop);
}

} // namespace wortlex
