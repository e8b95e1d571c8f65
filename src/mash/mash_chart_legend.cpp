#include "mash/mash_chart_legend.h"

#include "base/number.h"

#include <algorithm>

namespace wortlex {
namespace {

// In pixels of the screen, below the frame.
constexpr Extent complex_ground{401, 384}, simple_ground{401, 351};
constexpr int rows_of_simple_ground = 4; // of a legend
constexpr std::size_t most_names = 10, names_in_column = 5;
constexpr int row_step = 11, row_step_on_paper = 18;
constexpr int first_row = 40, first_row_of_second = 45, first_row_of_simple = 50, first_row_on_paper = 100;
constexpr int column_step = 125, spike_step_on_paper = 175;
constexpr int name_gap = 10; // from the left edge of a swatch
constexpr int spike_row = 110, spikes_below_on_paper = 36;
constexpr int letter_height = 12;

int name_count(const MashCourse& course, const MashChartOptions& options) {
    return options.solid_fill ? static_cast<int>(course.names.size()) : 0;
}

// A long legend of rests moves the row of the spikes down.
int spike_row_on_screen(const MashCourse& course, const MashChartOptions& options) {
    if (!course.is_simple) return spike_row;
    return std::max(spike_row, first_row_of_simple + row_step * name_count(course, options));
}

class Legend {
public:
    Legend(MashChart& chart, const MashCourse& course, const MashChartOptions& options)
        : chart_(chart), course_(course), options_(options), frame_(chart.frame) {}

    void add() {
        const auto count = static_cast<std::size_t>(name_count(course_, options_));
        const auto most = frame_.is_paper || course_.is_simple ? count : std::min(count, most_names);
        for (std::size_t i = 0; i < most; ++i) add_name(i);
        add_spikes(static_cast<int>(most));
    }

private:
    int dots(double pixels) const { return truncate(pixels * frame_.unit); }
    int across(double pixels) const { return truncate(pixels * frame_.sx); }
    int down(double pixels) const { return truncate(pixels * frame_.sy); }
    Point below(int x, int y) const { return {frame_.plot.left + x, frame_.plot.bottom + y}; }

    Box swatch(std::size_t at) const {
        const int row = static_cast<int>(at);
        if (frame_.is_paper) return square(on_paper(row), across(8));
        if (course_.is_simple) return square(below(-4, first_row_of_simple + row_step * row - 4), 8);
        const int column = row / static_cast<int>(names_in_column);
        const int top = column == 0 ? first_row : first_row_of_second;
        return square(below(column * column_step, top + row_step * (row % static_cast<int>(names_in_column))),
                      6);
    }
    Point on_paper(int row) const {
        return below(-across(120), down(first_row_on_paper + row_step_on_paper * row));
    }
    static Box square(Point at, int side) { return {at.x, at.y, at.x + side, at.y + side}; }

    // In the middle beside its swatch; of a rest, from the middle of its swatch.
    void add_name(std::size_t at) {
        const auto box = swatch(at);
        const auto& step = course_.names[at];
        const bool by_middle = course_.is_simple && !frame_.is_paper;
        const int middle = (box.top + box.bottom) / 2;
        const Point place = by_middle ? Point{(box.left + box.right) / 2 + name_gap, middle - 7}
                                      : Point{box.left + dots(name_gap), middle - dots(letter_height) / 2};
        chart_.swatches.push_back({box, step.colour, {place, step.name}});
    }

    void add_spikes(int names) {
        auto place = below(0, spike_row_on_screen(course_, options_));
        if (frame_.is_paper) {
            place = on_paper(std::max(names - 1, 0));
            if (names > 0) place.y += down(spikes_below_on_paper);
        }
        const int step = frame_.is_paper ? across(spike_step_on_paper) : column_step;
        if (course_.explains_decoctions) add_decoction(place);
        if (course_.explains_infusions) add_infusion({place.x + step, place.y});
    }

    void add_spike_name(Point mark, const char* name) {
        chart_.captions.push_back({{mark.x + dots(name_gap), mark.y - dots(letter_height - 8) / 2}, name});
    }

    void add_decoction(Point at) {
        chart_.spikes.push_back({{at.x + dots(6), at.y + dots(8)},
                                 {at.x + dots(6), at.y},
                                 {at.x + dots(2), at.y},
                                 {at.x, at.y + dots(8)}});
        add_spike_name(at, "Decoction Spike");
    }

    void add_infusion(Point at) {
        const int x = at.x + dots(3);
        chart_.spikes.push_back({{x, at.y + dots(9)}, {x, at.y + dots(2)}});
        chart_.rings.push_back({x - dots(2), at.y - dots(1), x + dots(3), at.y + dots(5)});
        add_spike_name(at, "Infusion Spike");
    }

    MashChart& chart_;
    const MashCourse& course_;
    const MashChartOptions& options_;
    const ChartFrame& frame_;
};

} // namespace

void add_legend(MashChart& chart, const MashCourse& course, const MashChartOptions& options) {
    Legend(chart, course, options).add();
}

Extent mash_chart_size(const MashCourse& course, const MashChartOptions& options) {
    if (!course.is_simple) return complex_ground;
    auto size = simple_ground;
    size.height += row_step * std::max(name_count(course, options) - rows_of_simple_ground, 0);
    const int spikes = ChartFrame().plot.bottom + spike_row_on_screen(course, options) + letter_height + 2;
    if (course.explains_infusions) size.height = std::max(size.height, spikes);
    return size;
}

int mash_chart_paper_height(const MashCourse& course, const MashChartOptions& options) {
    const auto frame = paper_frame({0, 0}, 1);
    const auto chart = mash_chart(course, options, frame);
    int bottom = frame.plot.bottom;
    for (const auto& swatch : chart.swatches) bottom = std::max(bottom, swatch.name.at.y + letter_height);
    for (const auto& caption : chart.captions) bottom = std::max(bottom, caption.at.y + letter_height);
    return bottom;
}

} // namespace wortlex
