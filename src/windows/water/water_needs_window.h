// The Water Needed Calculator, a tool of the main window.
#pragma once

#include "desktop/form_widgets.h"
#include "desktop/tool_window.h"
#include "program/window_ports.h"

namespace wortlex {

/// Begins with the brewer's usual figures at every opening.
class WaterNeedsWindow : public ToolWindow {
public:
    WaterNeedsWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);

protected:
    /// The settings bear on the balance.
    void follow(Change change) override;

private:
    Form made_form();
    void lay_out_rows();
    void save_default();

    WindowPorts ports_;
    Form form_;
    FormWidgets widgets_;
};

/// The stages from the left to the right, their sum and their picture below. The buttons are left to the
/// window.
QLayout* arrange_water_needs(const FormWidgets& widgets);

} // namespace wortlex
