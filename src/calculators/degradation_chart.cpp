#include "calculators/degradation_chart.h"

#include "base/number.h"
#include "charts/strokes.h"

#include <algorithm>
#include <array>
#include <vector>

namespace wortlex {
namespace {

constexpr std::uint32_t pale = 0xDCDCDC, leaf = 0x2C7A1E, red = 0x1E1EC8;

constexpr Extent area{500, 350};
constexpr int header_height = 156;
constexpr Box plot{60, 16, 480, 296}; // in the area
constexpr int steps_of_months = 12;
constexpr int mark_radius = 4;

struct Scales {
    Axis months;
    Axis percent;

    Point place(int month, double alpha) const { return {months.place(month), percent.place(alpha)}; }
};

// A year, or as many as the hop is old.
int months_shown(const HopDegradation& hop) {
    int months = steps_of_months;
    while (months < hop.months && months < 60) months += steps_of_months;
    return months;
}

Scales scales_of(const HopDegradation& hop, int top) {
    const int months = months_shown(hop);
    const int percent = std::clamp(truncate(hop.start_alpha), 0, 100) + 1;
    return {{plot.left, plot.right, 0, static_cast<double>(months)},
            {top + plot.bottom, top + plot.top, 0, static_cast<double>(percent)}};
}

void draw_header(Surface& surface, const HopDegradation& hop) {
    surface.set_font({.face = chart_face, .cell_height = 17, .weight = 700});
    surface.text({16, 12}, "Wortlex Hop Time/Alpha Degradation Chart");
    surface.set_font({.face = chart_face, .cell_height = 13});
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

void draw_grid(Surface& surface, const Scales& scales) {
    const int labelled = scales.percent.high < 18 ? 1 : 2;
    surface.set_pen({pale});
    const auto percents = ticks(scales.percent, 1, [labelled](int percent) {
        return percent % labelled == 0 ? formatted("%d", percent) : std::string();
    });
    draw_level_grid(surface, percents, plot.left, plot.right);
    const auto months = ticks(scales.months, truncate(scales.months.high) / steps_of_months,
                              [](int month) { return formatted("%d", month); });
    draw_upright_grid(surface, months, scales.percent.to, scales.percent.from);
}

void draw_axes(Surface& surface, const Scales& scales) {
    const Point origin{plot.left, scales.percent.from};
    surface.set_pen({chart_black});
    draw_line(surface, {plot.left, scales.percent.to}, origin);
    draw_line(surface, origin, {plot.right, origin.y});
}

void draw_captions(Surface& surface, int top) {
    surface.set_font({.face = chart_face, .cell_height = 14, .weight = 700});
    constexpr std::string_view word = "Alpha";
    const int height = surface.text_extent(word).height;
    const int above = top + (plot.top + plot.bottom - height * static_cast<int>(word.size())) / 2;
    draw_upright_text(surface, word, 18, above, height);
    const auto extent = surface.text_extent("Months");
    surface.text({(plot.left + plot.right - extent.width) / 2, top + area.height - extent.height - 6},
                 "Months");
}

void draw_curve(Surface& surface, const Scales& scales, const HopDegradation& hop) {
    std::vector<Point> points = {scales.place(0, hop.start_alpha)};
    for (int month = 1; month <= truncate(scales.months.high); ++month)
        points.push_back(scales.place(month, alpha_after(hop, month)));
    surface.set_pen({leaf, 2});
    surface.polyline(points);
}

void draw_mark(Surface& surface, const Scales& scales, const HopDegradation& hop) {
    const auto at = scales.place(hop.months, hop.adjusted_alpha);
    surface.set_pen({red});
    surface.set_brush(red);
    // The right and bottom edge of a box lie outside the circle.
    surface.ellipse({at.x - mark_radius, at.y - mark_radius, at.x + mark_radius + 1, at.y + mark_radius + 1});
}

} // namespace

std::string words_of_degradation_chart(const HopDegradation& hop) {
    const int months = months_shown(hop), quarter = months / 4;
    auto words = formatted("Chart of the alpha acid: %0.2f percent fresh", hop.start_alpha);
    for (int month = quarter; month <= months; month += quarter)
        words += formatted(", %0.2f", alpha_after(hop, month)) + formatted(" after %d months", month);
    return words;
}

Extent degradation_chart_size(bool with_header) {
    return {area.width, area.height + (with_header ? header_height : 0)};
}

void draw_degradation_chart(Surface& surface, const HopDegradation& hop, bool with_header) {
    const int top = with_header ? header_height : 0;
    const auto scales = scales_of(hop, top);
    clear(surface, degradation_chart_size(with_header), chart_white);
    surface.set_text_colour(chart_black);
    if (with_header) draw_header(surface, hop);
    surface.set_font({.face = chart_face, .cell_height = 12});
    draw_grid(surface, scales);
    draw_axes(surface, scales);
    draw_captions(surface, top);
    draw_curve(surface, scales, hop);
    draw_mark(surface, scales, hop);
}

} // namespace wortlex
