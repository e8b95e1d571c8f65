// What a window makes pictures of its chart with.
#pragma once

#include "charts/chart_picture.h"
#include "program/window_ports.h"

namespace wortlex {

/// With the folders and the quality of the program's settings.
PictureDesk picture_desk(const WindowPorts& ports);

} // namespace wortlex
