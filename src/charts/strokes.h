// What every chart is drawn with: lines, grids with their labels, upright captions.
#pragma once

#include "base/ports/surface.h"
#include "charts/axis.h"

#include <span>

namespace wortlex {

/// The face of all charts, or what stands for it.
inline constexpr std::string_view chart_face = "Arial";
inline constexpr std::uint32_t chart_black = 0x000000, chart_white = 0xFFFFFF; ///< 0x00BBGGRR

/// The font of a chart's words. `cell_height` is that of a line, from the top of the highest letter to the
/// bottom of the lowest.
void set_chart_font(Surface& surface, int cell_height, bool italic = false, int weight = 200);

void draw_line(Surface& surface, Point from, Point to);

/// Fills the area from the top left corner.
void clear(Surface& surface, Extent area, std::uint32_t colour);

/// A line across from `left` to `right` at each tick, its label in front of it, centred on the line.
void draw_level_grid(Surface& surface, std::span<const Tick> ticks, int left, int right);

/// A line from `bottom` up to `top` at each tick, its label centred under it.
void draw_upright_grid(Surface& surface, std::span<const Tick> ticks, int top, int bottom);

/// One letter below the other, centred on `x`, the first one at `top`. `step` is from letter to letter.
void draw_upright_text(Surface& surface, std::string_view letters, int x, int top, int step);

} // namespace wortlex
