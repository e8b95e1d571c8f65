#include "water/water_chart.h"

#include "base/number.h"
#include "base/windows1252.h"
#include "charts/chart_place.h"
#include "charts/strokes.h"
#include "water/salt_words.h"

#include <algorithm>
#include <cmath>

namespace wortlex {
namespace {

constexpr int groups_left = 40, baseline = 250, bar_height = 200;
constexpr int group_pitch = 75, bar_pitch = 14, bar_width = 10, first_bar = -3;
constexpr int frame_before = 10, frame_width = 50, frame_below = 5, frame_height = bar_height + 13;
constexpr int name_below = 12, most_above = 25;
constexpr int legend_below = 42, legend_pitch = 13, swatch_side = 12, swatch_to_text = 16;
constexpr Point title_at{125, 5};
constexpr int additions_below_legend = 50, list_below_legend = 62, list_pitch = 10;
constexpr int word_height = 14, word_weight = 300;
constexpr Extent printed_size{water_chart_size.width, 410};

// The water of a bar, in the order of the bars.
struct ChartedWater {
    WaterRecord WaterAnalysis::*water;
    std::uint32_t colour; ///< 0x00BBGGRR
    const char* words;
    bool is_named;
};

constexpr std::array charted = {ChartedWater{&WaterAnalysis::source, 0xAF0000, "=Your Water : ", true},
                                ChartedWater{&WaterAnalysis::target, 0x00AF00, "=Profile Water : ", true},
                                ChartedWater{&WaterAnalysis::result, 0x0000AF, "=Yours+Additions", false}};

const char* name_of(const Ion& ion) {
    return ion.ppm == &WaterRecord::bicarbonate ? "Carb" : ion.symbol;
}

// A bar of nothing has no height, and what is no number is none.
double charted_ppm(const WaterAnalysis& analysis, const ChartedWater& water, const Ion& ion) {
    const double ppm = analysis.*water.water.*ion.ppm;
    return std::isfinite(ppm) ? std::max(ppm, 0.0) : 0.0;
}

double most_of(const WaterAnalysis& analysis, const Ion& ion) {
    double most = 0;
    for (const auto& water : charted) most = std::max(most, charted_ppm(analysis, water, ion));
    return most;
}

std::vector<WaterBar> bars_of(const WaterAnalysis& analysis, const Ion& ion, int x, double most) {
    std::vector<WaterBar> bars;
    x += first_bar;
    for (const auto& water : charted) {
        const double ppm = charted_ppm(analysis, water, ion);
        const int height = ppm > 0 ? std::max(truncate(ppm / most * bar_height + 0.5), 1) : 0;
        if (height > 0) bars.push_back({{x, baseline - height, x + bar_width, baseline}, water.colour});
        x += bar_pitch;
    }
    return bars;
}

IonGroup group_of(const WaterAnalysis& analysis, const Ion& ion, int x) {
    const double most = most_of(analysis, ion);
    const int bottom = baseline + frame_below, frame_left = x - frame_before;
    return {.name_at = {x, baseline + name_below},
            .name = name_of(ion),
            .most_at = {x, baseline - bar_height - most_above},
            .most = formatted("%0.1f ppm", most),
            .frame = {frame_left, bottom - frame_height, frame_left + frame_width, bottom},
            .bars = bars_of(analysis, ion, x, most)};
}

// The pen fills, too, and so there is no outline.
void fill(Surface& surface, const Box& box, std::uint32_t colour) {
    surface.set_pen({colour});
    surface.set_brush(colour);
    surface.rectangle(box);
}

void draw_group(Surface& surface, const IonGroup& group) {
    surface.set_pen({chart_black});
    surface.set_brush(std::nullopt);
    surface.rectangle(group.frame);
    for (const auto& bar : group.bars) fill(surface, bar.box, bar.colour);
    surface.text(group.name_at, group.name);
    surface.text(group.most_at, group.most);
}

void draw_chart(Surface& surface, const WaterAnalysis& analysis, Extent area) {
    const auto chart = water_chart(analysis);
    clear(surface, area, chart_white);
    surface.set_text_colour(chart_black);
    set_chart_font(surface, word_height, false, word_weight);
    for (const auto& group : chart.groups) draw_group(surface, group);
    for (const auto& entry : chart.legend) {
        fill(surface, entry.swatch, entry.colour);
        surface.text(entry.text_at, entry.text);
    }
    surface.text(title_at, "Wortlex Water Profile Chart");
}

// Rows as close as these take letters that are as low.
void draw_additions(Surface& surface, const WaterAnalysis& analysis) {
    constexpr int legend_top = baseline + legend_below;
    set_chart_font(surface, list_pitch, false, word_weight);
    surface.text({groups_left, legend_top + additions_below_legend}, "Additions (per gallon):");
    int y = legend_top + list_below_legend;
    for (std::size_t i = 0; i < salt_words.size(); ++i) {
        if (salt_words[i].chart == nullptr) continue;
        surface.text({groups_left, y},
                     formatted("%0.2f Grams ", analysis.rate(salt_effects[i].salt)) + salt_words[i].chart);
        y += list_pitch;
    }
}

} // namespace

WaterChart water_chart(const WaterAnalysis& analysis) {
    WaterChart chart;
    for (std::size_t i = 0; i < ions.size(); ++i)
        chart.groups[i] = group_of(analysis, ions[i], groups_left + static_cast<int>(i) * group_pitch);
    int y = baseline + legend_below;
    for (std::size_t i = 0; i < charted.size(); ++i) {
        const auto& [water, colour, words, is_named] = charted[i];
        const auto name = is_named ? utf8_from_windows1252((analysis.*water).name.view()) : std::string();
        chart.legend[i] = {.swatch = {groups_left, y, groups_left + swatch_side, y + swatch_side},
                           .colour = colour,
                           .text_at = {groups_left + swatch_to_text, y},
                           .text = words + name};
        y += legend_pitch;
    }
    return chart;
}

std::string words_of_water_chart(const WaterAnalysis& analysis) {
    std::string words = "Water chart, ppm of your water, of the profile and of yours with the additions: ";
    const auto* separator = "";
    for (const auto& ion : ions) {
        words += separator + std::string(name_of(ion));
        for (const auto& water : charted) words += formatted(" %0.1f", charted_ppm(analysis, water, ion));
        separator = "; ";
    }
    return words;
}

ChartDrawing water_chart_drawing(const WaterAnalysis& analysis, Extent size) {
    return {size, [&analysis, size](Surface& surface) { draw_chart(surface, analysis, size); }};
}

void print_water_chart(PageContext& page, const WaterAnalysis& analysis, ChartForm form, float scale) {
    draw_in_place(page.PlaceChart(form, scale), printed_size, [&](Surface& surface) {
        draw_chart(surface, analysis, printed_size);
        draw_additions(surface, analysis);
    });
}

PrintRequest water_chart_printout(const WaterAnalysis& analysis, float printer_scale) {
    return {"Wortlex Water Profile Chart", printer_scale, [analysis, printer_scale](PageContext& page) {
                print_water_chart(page, analysis, ChartForm::alone, printer_scale);
            }};
}

} // namespace wortlex
