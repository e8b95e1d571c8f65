// Days Between Dates: two calendars side by side.
#pragma once

#include "desktop/form_widgets.h"
#include "desktop/tool_window.h"
#include "program/window_ports.h"

#include <QCalendarWidget>

namespace wortlex {

/// Both begin with today, at every opening.
class DateCalculatorWindow : public ToolWindow {
public:
    DateCalculatorWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);

private:
    void add_calendar(QCalendarWidget& calendar, const QString& name, int column);
    std::string days() const;

    QCalendarWidget* start_;
    QCalendarWidget* stop_;
    Form form_;
    FormWidgets widgets_;
};

} // namespace wortlex
