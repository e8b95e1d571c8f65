// The form of a chart window: the chart, and what it shows.
#pragma once

#include "charts/chart_picture.h"
#include "forms/form.h"
#include "mash/mash_chart.h"
#include "page/page.h"

namespace wortlex {

/// What the charts show, as long as the program runs.
struct MashChartChoice {
    MashChartOptions options;
    std::optional<TemperatureUnits> system_units; ///< those that the chart's follow when they change
};

/// The unit of the charts is that of the system until the user chooses another one.
void follow_units(MashChartChoice& choice, TemperatureUnits system_units);

/// The schedule as it stands whenever it is asked for.
using MashAsked = std::function<ChartedMash()>;

/// The chart as it is shown now.
ChartDrawing mash_chart_drawing(const ChartedMash& mash, const MashChartOptions& options, const Pen& spikes);

/// With every step in the legend. `scale` is that of the printer settings or of a report.
void print_mash_chart(PageContext& page, const MashCourse& course, const MashChartOptions& options,
                      const Pen& spikes, ChartForm form, float scale);

/// On a page of its own.
PrintRequest mash_chart_printout(const ChartedMash& mash, const MashChartOptions& options,
                                 const SystemSettings& settings);

struct MashChartActions {
    std::function<void()> print, jpg, help;
};

/// On `options`, which with `settings` must outlive the form.
void mash_chart_form(Form& form, const MashAsked& mash, MashChartOptions& options,
                     const SystemSettings& settings, MashChartActions actions);

} // namespace wortlex
