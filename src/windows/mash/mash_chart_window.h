// The chart of a mash, beside the window that works on the schedule.
#pragma once

#include "mash/mash_chart_form.h"
#include "program/window_ports.h"

#include <string_view>

class QWidget;

namespace wortlex {

/// Brings the chart of a window forward, which is opened first if it is not open and closes with `origin`.
/// `name` is that of its template. It asks for the schedule whenever anything is told on the notice board:
/// what is not told there already, `origin` tells as `Change::mash`.
void open_mash_chart(const WindowPorts& ports, std::string_view name, const MashAsked& mash, QWidget* origin);

} // namespace wortlex
