// The Water Profile Calculator, a tool of the main window.
#pragma once

#include "water/water_calculator.h"
#include "water/water_calculator_form.h"
#include "windows/water/water_chart_window.h"

#include <QPointer>

namespace wortlex {

/// Begins empty at every opening.
class WaterCalculatorWindow : public ToolWindow {
public:
    WaterCalculatorWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);

protected:
    bool may_close() override { return calculator_.may_drop(); }

private:
    Form made_form();
    void lay_out_rows();
    void show_totals();
    void show_chart();

    WindowPorts ports_;
    WaterCalculator calculator_;
    Form form_;
    FormWidgets widgets_;
    QPointer<WaterChartWindow> chart_;
};

/// The waters, the grid and the tools of a `water_calculator_form`. The buttons for its files, for print and
/// help are left to the window.
QLayout* arrange_water_profile(const FormWidgets& widgets);

/// Takes the salts that the dialog proposes, if the brewer does.
void suggest_salts(const WindowPorts& ports, WaterAnalysis& analysis, QWidget* owner);

} // namespace wortlex
