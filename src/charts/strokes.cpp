#include "charts/strokes.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr int gap_to_level = 6, gap_to_upright = 4; // between a label and its line, in pixels

} // namespace

// A surface takes a height for that of the letters' square; a line of most faces is higher.
void set_chart_font(Surface& surface, int cell_height, bool italic, int weight) {
    Font font{.face = chart_face, .cell_height = cell_height, .weight = weight, .italic = italic};
    surface.set_font(font);
    const int line = surface.text_extent("A").height;
    if (line <= cell_height) return;
    font.cell_height = std::max(1, cell_height * cell_height / line);
    surface.set_font(font);
}

void draw_line(Surface& surface, Point from, Point to) {
    surface.move_to(from);
    surface.line_to(to);
}

// The pen fills, too: without one a rectangle would miss its last row and column.
void clear(Surface& surface, Extent area, std::uint32_t colour) {
    surface.set_pen({colour});
    surface.set_brush(colour);
    surface.rectangle({0, 0, area.width, area.height});
}

void draw_level_grid(Surface& surface, std::span<const Tick> ticks, int left, int right) {
    for (const auto& [at, label] : ticks) {
        draw_line(surface, {left, at}, {right, at});
        if (label.empty()) continue;
        const auto extent = surface.text_extent(label);
        surface.text({left - gap_to_level - extent.width, at - extent.height / 2}, label);
    }
}

void draw_upright_grid(Surface& surface, std::span<const Tick> ticks, int top, int bottom) {
    for (const auto& [at, label] : ticks) {
        draw_line(surface, {at, bottom}, {at, top});
        if (label.empty()) continue;
        surface.text({at - surface.text_extent(label).width / 2, bottom + gap_to_upright}, label);
    }
}

void draw_upright_text(Surface& surface, std::string_view letters, int x, int top, int step) {
    for (std::size_t letter = 0; letter < letters.size(); ++letter, top += step) {
        const auto text = letters.substr(letter, 1);
        surface.text({x - surface.text_extent(text).width / 2, top}, text);
    }
}

} // namespace wortlex
