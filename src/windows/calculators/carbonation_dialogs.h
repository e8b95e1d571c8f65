// The carbonation of a session's bottles, kegs or tanks, asked for by a field of another window.
#pragma once

#include "calculators/carbonation_of_session.h"
#include "program/window_ports.h"

#include <QWidget>

namespace wortlex {

/// Ounces of the medium chosen, as shown; nothing on Cancel.
std::optional<float> ask_priming(const WindowPorts& ports, QWidget* owner, CarbonationCalculator calculator);

/// Psi; nothing on Cancel.
std::optional<float> ask_pressure(const WindowPorts& ports, QWidget* owner,
                                  const CarbonationCalculator& calculator);

} // namespace wortlex
