// The Time Sheet: the log of a brew day and its clock.
#pragma once

#include "calculators/time_sheet.h"
#include "desktop/form_widgets.h"
#include "desktop/system_ports.h"
#include "desktop/tool_window.h"
#include "program/window_ports.h"

#include <QTimer>

namespace wortlex {

class TimeSheetWindow : public ToolWindow {
public:
    TimeSheetWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);
    void tell_once_shown() override;

protected:
    bool may_close() override { return sheet_.may_close(); }

private:
    std::optional<std::string> ask_comment(std::string_view comment);
    Form made_form();
    void lay_out_rows();

    WindowPorts ports_;
    SystemClock clock_;
    TimeSheet sheet_;
    Form form_;
    FormWidgets widgets_;
    QTimer ticks_;
};

} // namespace wortlex
