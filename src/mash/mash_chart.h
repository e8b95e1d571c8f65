// The chart of a mash, worked out to the last line before anything is drawn.
#pragma once

#include "base/ports/surface.h"
#include "mash/mash_course.h"

namespace wortlex {

/// Where a chart stands on its surface, and how large everything is there.
struct ChartFrame {
    Box plot{70, 30, 370, 256};
    double sx = 1;   ///< of the offsets of texts, across
    double sy = 1;   ///< and down
    double unit = 1; ///< dots of a pixel of the screen: of letters, pens and marks
    bool is_paper = false;
};

/// The frame on paper whose corner is at `offset`, with `unit` dots for each pixel of the screen.
ChartFrame paper_frame(Point offset, double unit);

struct ChartText {
    Point at;
    std::string text;
};

struct ChartPolygon {
    std::vector<Point> corners;
    std::uint32_t colour = 0; ///< 0x00BBGGRR
};

struct ChartSwatch {
    Box box;
    std::uint32_t colour = 0;
    ChartText name;
};

/// Everything in dots of the surface.
struct MashChart {
    ChartFrame frame;
    Extent ground; ///< white, on the screen
    bool solid_fill = true;
    std::vector<ChartPolygon> fills;
    std::vector<Point> curve;
    std::vector<int> fine_levels; ///< lines across
    std::vector<int> levels;
    std::vector<int> uprights; ///< lines up
    std::vector<ChartText> labels;
    std::vector<std::vector<Point>> spikes;
    std::vector<Box> rings; ///< around the tops of infusions
    std::vector<ChartSwatch> swatches;
    std::vector<ChartText> captions;      ///< title and names of spikes
    std::vector<ChartText> axis_captions; ///< of the letters of "Temperature", each by itself
};

/// At most one line of the grid stands on a dot, whatever the schedule says.
MashChart mash_chart(const MashCourse& course, const MashChartOptions& options, const ChartFrame& frame = {});

/// What the chart tells, for those who do not see it.
std::string words_of_mash_chart(const MashCourse& course, TemperatureUnits units);

/// What a chart takes on the screen and in a picture.
Extent mash_chart_size(const MashCourse& course, const MashChartOptions& options);

/// The height of a chart on paper in pixels of the screen, legend included.
int mash_chart_paper_height(const MashCourse& course, const MashChartOptions& options);

/// How spikes are drawn.
Pen spike_pen(const SystemSettings& settings);

/// Draws it on white.
void draw_mash_chart(Surface& surface, const MashChart& chart, const Pen& spikes);

} // namespace wortlex
