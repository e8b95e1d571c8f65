// The water profile chart: for each ion your water, the water to be matched, and yours with the additions.
#pragma once

#include "charts/chart_picture.h"
#include "page/page.h"
#include "records/water/water_analysis.h"

namespace wortlex {

struct WaterBar {
    Box box; ///< filled up to its edges
    std::uint32_t colour = 0;
};

/// The bars of an ion, on a scale of their own: the highest of the three fills it.
struct IonGroup {
    Point name_at;
    std::string name;
    Point most_at;
    std::string most; ///< ppm, in words
    Box frame;
    std::vector<WaterBar> bars; ///< only of what is above 0
};

struct WaterLegend {
    Box swatch;
    std::uint32_t colour = 0;
    Point text_at;
    std::string text;
};

/// All places in pixels of the chart.
struct WaterChart {
    std::array<IonGroup, ions.size()> groups;
    std::array<WaterLegend, 3> legend;
};

WaterChart water_chart(const WaterAnalysis& analysis);

/// What the chart tells, for those who do not see it.
std::string words_of_water_chart(const WaterAnalysis& analysis);

/// The client area of the chart's window. What is drawn leaves the lowest 30 pixels to the buttons.
inline constexpr Extent water_chart_window{500, 360};
inline constexpr Extent water_chart_size{water_chart_window.width, water_chart_window.height - 30};

/// On white, as it stands when it is called; `analysis` must outlive the drawing. Its window has a margin
/// below the legend, which a picture ends with.
ChartDrawing water_chart_drawing(const WaterAnalysis& analysis, Extent size = water_chart_size);
inline constexpr Extent water_chart_shown{water_chart_size.width, water_chart_size.height + 8};

/// The chart with the additions below it. `scale` is that of the printer settings or of a report.
void print_water_chart(PageContext& page, const WaterAnalysis& analysis, ChartForm form, float scale);

/// The chart alone on its page, with the additions listed below it.
PrintRequest water_chart_printout(const WaterAnalysis& analysis, float printer_scale);

} // namespace wortlex
