// The calculator of the dough-in strike water, a tool of the main window.
#pragma once

#include "desktop/form_widgets.h"
#include "desktop/tool_window.h"
#include "mash/strike_calculator_form.h"
#include "program/window_ports.h"

namespace wortlex {

/// Its values last for the run.
class StrikeCalculatorWindow : public ToolWindow {
public:
    StrikeCalculatorWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);

private:
    void lay_out_rows();

    Form form_;
    FormWidgets widgets_;
};

} // namespace wortlex
