// Hydrometer and refractometer for a field of another window: each takes the field's value and hands back
// what was measured.
#pragma once

#include "calculators/refractometer_tool.h"
#include "program/window_ports.h"

#include <QWidget>

namespace wortlex {

/// Whose field it is; each remembers a place of its own. The order is that of the table of windows.
enum class HydrometerUse { dilution, boil_off, session_gravity, session_efficiency, mash };

/// An SG corrected for the temperature at which it was read; nothing on Cancel.
std::optional<float> correct_gravity(const WindowPorts& ports, QWidget* owner, float sg, HydrometerUse use);

/// Each stores what it read on OK, and changes nothing on Cancel; nothing is handed back then.

/// SG of unfermented wort: runnings, recorded efficiency or recorded original gravity.
std::optional<float> measure_raw_wort(const WindowPorts& ports, QWidget* owner, RefractometerUse use,
                                      float sg, RefractometerPair& stored, const PrintedSession& session);
/// The finishing gravity (SG) of a wort whose two gravities are given in Plato.
std::optional<float> measure_finishing_gravity(const WindowPorts& ports, QWidget* owner, float og_plato,
                                               float fg_plato, RefractometerPair& stored,
                                               const PrintedSession& session);
/// Stores only if a value was changed. The gravities are Plato.
bool measure_alcohol(const WindowPorts& ports, QWidget* owner, float og_plato, float fg_plato,
                     AlcoholReading& stored, const PrintedSession& session);

} // namespace wortlex
