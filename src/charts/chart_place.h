// A chart of pixels on paper: made larger and put in its place on a page.
#pragma once

#include "page/page.h"

#include <functional>

namespace wortlex {

/// Draws a chart of `chart` pixels as large as the room of `place` allows, in its middle.
void draw_in_place(const ChartPlace& place, Extent chart, const std::function<void(Surface&)>& draw);

} // namespace wortlex
