// The chart of a matched water, which follows each edit.
#pragma once

#include "desktop/form_widgets.h"
#include "desktop/tool_window.h"
#include "program/window_ports.h"
#include "water/water_chart.h"

namespace wortlex {

/// Open once at most: who opens it keeps it. It stays above `origin`, whose `analysis` it shows.
class WaterChartWindow : public ToolWindow {
public:
    WaterChartWindow(const WindowPorts& ports, const WaterAnalysis& analysis, Opener opener, QWidget* origin);

private:
    Form made_form();

    WindowPorts ports_;
    const WaterAnalysis& analysis_;
    Form form_;
    FormWidgets widgets_;
};

} // namespace wortlex
