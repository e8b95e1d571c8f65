// The calendars in which a session's dates are picked.
#pragma once

#include "base/ports/clock.h"
#include "program/window_ports.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace wortlex {

/// The day of brewing, from a calendar that shows `date`, a day that exists; nothing on Cancel.
std::optional<CalendarDate> pick_brewing_date(const WindowPorts& ports, QWidget* owner,
                                              const CalendarDate& date);

/// The day of bottling, likewise. `work_out` answers its button: a day that exists, or nothing, having said
/// why.
std::optional<CalendarDate> pick_bottling_date(const WindowPorts& ports, QWidget* owner,
                                               const CalendarDate& date,
                                               const std::function<std::optional<CalendarDate>()>& work_out);

} // namespace wortlex
