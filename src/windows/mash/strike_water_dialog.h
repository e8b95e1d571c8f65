// The strike water of a session, in a dialog over its mash window.
#pragma once

#include "mash/strike_water_form.h"
#include "program/window_ports.h"

#include <QWidget>

#include <optional>

namespace wortlex {

/// The figures as they were accepted; nothing on Cancel.
std::optional<StrikeWater> calculate_strike_water(const WindowPorts& ports, QWidget* owner,
                                                  StrikeWater water);

} // namespace wortlex
