// The windows of the brewer's tools, as the main window makes them. Their values last for the run.
#pragma once

#include "desktop/tool_window.h"
#include "program/window_ports.h"

namespace wortlex {

ToolWindow* make_hydrometer(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);
ToolWindow* make_calibration(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);
ToolWindow* make_raw_wort_gravity(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);
ToolWindow* make_fermentation_gravity(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);
ToolWindow* make_refractometer_alcohol(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);
ToolWindow* make_alcohol(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);
ToolWindow* make_dilution(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);
ToolWindow* make_boil_off(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);
ToolWindow* make_carbonation(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);
ToolWindow* make_units(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);

} // namespace wortlex
