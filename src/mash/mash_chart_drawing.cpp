#include "base/number.h"
#include "charts/strokes.h"
#include "mash/mash_chart.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::uint32_t first_frame = 0xFFFF00, second_frame = 0x7D0000, plain_fill = 0xFFFF00,
                        fine_grey = 0xAAAAAA, curve_red = 0x0000FF;
constexpr int text_height = 12, caption_height = 14;

class Drawing {
public:
    Drawing(Surface& surface, const MashChart& chart) : surface_(surface), chart_(chart) {}

    void draw(const Pen& spikes) {
        if (chart_.ground.width > 0) clear(surface_, chart_.ground, chart_white);
        surface_.set_text_colour(chart_black);
        draw_frame({first_frame, 2});
        draw_fills();
        draw_grid();
        use(curve_pen());
        surface_.polyline(chart_.curve);
        draw_spikes(spikes);
        draw_frame({second_frame, 1});
        draw_words();
    }

private:
    int dots(int pixels) const { return std::max(1, truncate(pixels * chart_.frame.unit)); }
    void use(Pen pen) {
        pen.width = dots(pen.width);
        surface_.set_pen(pen);
    }
    Pen curve_pen() const { return chart_.solid_fill ? Pen{chart_black, 1} : Pen{curve_red, 2}; }

    void draw_frame(const Pen& pen) {
        const auto& plot = chart_.frame.plot;
        use(pen);
        surface_.set_brush(std::nullopt);
        surface_.rectangle({plot.left, plot.top, plot.right + 1, plot.bottom + 1}); // on its edges
    }

    void draw_fills() {
        use(curve_pen());
        surface_.set_brush(plain_fill);
        for (const auto& [corners, colour] : chart_.fills) {
            if (chart_.solid_fill) {
                use({colour, 1});
                surface_.set_brush(colour);
            }
            surface_.polygon(corners);
        }
    }

    void draw_levels(const std::vector<int>& levels) {
        const auto& plot = chart_.frame.plot;
        for (const int y : levels) draw_line(surface_, {plot.left, y}, {plot.right, y});
    }

    void draw_grid() {
        const auto& plot = chart_.frame.plot;
        use({fine_grey, 1});
        draw_levels(chart_.fine_levels);
        use({chart_black, 1});
        draw_levels(chart_.levels);
        for (const int x : chart_.uprights) draw_line(surface_, {x, plot.bottom}, {x, plot.top});
        set_chart_font(surface_, dots(text_height));
        draw_texts(chart_.labels);
    }

    void draw_spikes(const Pen& pen) {
        surface_.set_brush(std::nullopt);
        use(pen);
        for (const auto& spike : chart_.spikes) surface_.polyline(spike);
        use({pen.colour, 1});
        for (const auto& ring : chart_.rings) surface_.ellipse(ring);
    }

    void draw_texts(const std::vector<ChartText>& texts) {
        for (const auto& [at, text] : texts) surface_.text(at, text);
    }

    void draw_words() {
        set_chart_font(surface_, dots(text_height));
        for (const auto& [box, colour, name] : chart_.swatches) {
            use({colour, 1});
            surface_.set_brush(colour);
            surface_.rectangle(box);
            surface_.text(name.at, name.text);
        }
        draw_texts(chart_.captions);
        set_chart_font(surface_, dots(caption_height), true);
        draw_texts(chart_.axis_captions);
    }

    Surface& surface_;
    const MashChart& chart_;
};

} // namespace

Pen spike_pen(const SystemSettings& settings) {
    const bool is_solid = settings.spike_line == SpikeLine::solid;
    return {curve_red, settings.spike_thickness == SpikeThickness::thick ? 2 : 1,
            is_solid ? PenStyle::solid : PenStyle::dot};
}

void draw_mash_chart(Surface& surface, const MashChart& chart, const Pen& spikes) {
    Drawing(surface, chart).draw(spikes);
}

} // namespace wortlex
