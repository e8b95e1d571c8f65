#include "mash/mash_chart.h"

#include "base/number.h"
#include "mash/mash_chart_legend.h"
#include "measures/degrees.h"

#include <algorithm>
#include <cmath>

namespace wortlex {
namespace {

// Of texts on paper, to the dots of a pixel: what stands farthest to the left is just on the page.
constexpr double across_on_paper = 70.0 / 120, down_on_paper = 0.6;
constexpr double sum_error = 1e-6; // of dots: a line on the frame stays on it
constexpr int least_minute_grid = 5, least_minute_grid_labelled_on_paper = 10;
constexpr int level_label_room = 8, upright_label_room = 16; // pixels that a label needs

int height_of(const ChartFrame& frame) {
    return frame.plot.bottom - frame.plot.top;
}

// From minutes and degrees to dots. What lies beyond the frame stands at its edge.
class ChartScale {
public:
    ChartScale(const MashCourse& course, const ChartFrame& frame)
        : plot_(frame.plot), low_(course.low),
          per_minute_(course.minutes > 0 ? (plot_.right - plot_.left) / course.minutes : 0),
          per_degree_(height_of(frame) / (course.high - course.low)) {}

    double per_minute() const { return per_minute_; }
    double per_degree() const { return per_degree_; }
    int x(double minute) const {
        return std::clamp(truncate(plot_.left + minute * per_minute_ + sum_error), plot_.left, plot_.right);
    }
    int y(double degrees) const { return std::clamp(free_y(degrees), plot_.top, plot_.bottom); }
    /// Not held to the frame.
    int free_y(double degrees) const {
        return truncate(plot_.bottom - (degrees - low_) * per_degree_ + sum_error);
    }
    Point place(const CoursePoint& point) const { return {x(point.minute), y(point.degrees)}; }

private:
    Box plot_;
    double low_;
    double per_minute_;
    double per_degree_;
};

// Lines that would come to stand closer than a dot are left out.
double line_step(double step, double dots_of_one) {
    const double dots = step * dots_of_one;
    return dots < 1 ? step * std::ceil(1 / dots) : step;
}

class ChartMaker {
public:
    ChartMaker(const MashCourse& course, const MashChartOptions& options, const ChartFrame& frame)
        : course_(course), options_(options), frame_(frame), scale_(course, frame) {
        chart_.frame = frame;
        chart_.solid_fill = options.solid_fill;
        if (!frame.is_paper) chart_.ground = mash_chart_size(course, options);
    }

    MashChart made() {
        if (scale_.per_degree() > 0) {
            draw_course();
            add_levels();
            for (const auto& spike : course_.spikes) add_spike(spike);
        }
        if (scale_.per_minute() > 0) add_uprights();
        add_captions();
        add_legend(chart_, course_, options_);
        return std::move(chart_);
    }

private:
    int across(double pixels) const { return truncate(pixels * frame_.sx); }
    int down(double pixels) const { return truncate(pixels * frame_.sy); }
    int dots(double pixels) const { return truncate(pixels * frame_.unit); }
    int side(double pixels, double on_paper) const {
        return frame_.is_paper ? across(on_paper) : dots(pixels);
    }

    void draw_course() {
        chart_.curve.push_back({frame_.plot.left, frame_.plot.bottom});
        for (const auto& patch : course_.patches) {
            ChartPolygon fill{{}, patch.colour};
            for (const auto& point : patch.points) fill.corners.push_back(scale_.place(point));
            chart_.curve.insert(chart_.curve.end(), fill.corners.begin(), fill.corners.end());
            const int left = fill.corners.front().x, right = fill.corners.back().x;
            fill.corners.push_back({right, frame_.plot.bottom});
            fill.corners.push_back({left, frame_.plot.bottom});
            chart_.fills.push_back(std::move(fill));
        }
    }

    void add_level_label(double degrees, int y) {
        const bool is_celsius = options_.units == TemperatureUnits::celsius;
        const auto words =
            is_celsius ? formatted("%d C", truncate(celsius(degrees))) : formatted("%d F", truncate(degrees));
        chart_.labels.push_back({{frame_.plot.left - side(42, 90), y - down(7)}, words});
    }

    void add_fine_levels() {
        const double step = line_step(2, scale_.per_degree());
        double at = std::floor(course_.low / 2) * 2 + 2;
        while (at < course_.high) {
            chart_.fine_levels.push_back(scale_.y(at));
            at += step;
        }
    }

    void add_levels() {
        if (options_.fine_lines) add_fine_levels();
        const double step = line_step(10, scale_.per_degree());
        const double last = std::trunc(course_.high);
        const int room = dots(level_label_room);
        double at = std::trunc(course_.low / 10) * 10 + 10;
        int labelled = frame_.plot.bottom + room;
        const auto label = [&](int y) {
            if (labelled - y < room) return;
            add_level_label(at, y);
            labelled = y;
        };
        while (at < last) {
            const int y = scale_.free_y(at);
            if (y >= frame_.plot.top) {
                chart_.levels.push_back(y);
                label(y);
            }
            at += step;
        }
        if (const int y = scale_.free_y(at); y >= frame_.plot.top) label(y);
    }

    // With a narrow grid only every second line bears its minutes.
    void add_uprights() {
        const int grid = std::max(options_.minute_grid, least_minute_grid);
        const bool every_second =
            frame_.is_paper ? grid < least_minute_grid_labelled_on_paper : grid == least_minute_grid;
        const double step = line_step(grid, scale_.per_minute());
        const int labelled = every_second ? 2 : 1; // of so many lines one, or fewer where they are crowded
        const double between = labelled * step * scale_.per_minute();
        const int stride = labelled * truncate(std::max(std::ceil(dots(upright_label_room) / between), 1.0));
        int line = 0;
        const auto label = [&](double minute) {
            if (line++ % stride != 0) return;
            chart_.labels.push_back({{scale_.x(minute) - across(7), frame_.plot.bottom + down(7)},
                                     formatted("%d", truncate(minute))});
        };
        double minute = 0;
        while (minute < course_.minutes) {
            chart_.uprights.push_back(scale_.x(minute));
            label(minute);
            minute += step;
        }
        if (std::fmod(course_.minutes, step) == 0) label(course_.minutes);
    }

    void add_spike(const CourseSpike& spike) {
        const auto from = scale_.place(spike.from);
        const int top = scale_.y(spike.degrees);
        if (!spike.is_decoction) {
            chart_.spikes.push_back({from, {from.x, top}});
            chart_.rings.push_back({from.x - dots(2), top - dots(3), from.x + dots(3), top + dots(3)});
            return;
        }
        const auto to = scale_.place(spike.to);
        chart_.spikes.push_back({to, {to.x, top}, {from.x + dots(5), top}, from});
    }

    std::string title() const {
        std::string usual = "Wortlex Mash Schedule Chart";
        if (course_.name.empty()) return usual;
        return frame_.is_paper ? course_.name + " - " + usual : course_.name;
    }

    void add_captions() {
        const auto& plot = frame_.plot;
        const bool on_paper = frame_.is_paper;
        const Point of_title =
            on_paper ? Point{plot.left - across(120), plot.top - dots(26)} : Point{plot.left, down(4)};
        chart_.captions.push_back({of_title, title()});
        chart_.axis_captions.push_back(
            {{plot.left + across(115), plot.bottom + down(on_paper ? 30 : 20)}, "Time (in minutes)"});
        int y = on_paper ? plot.top + down(48) : down(68);
        for (const char letter : std::string_view("Temperature")) {
            chart_.axis_captions.push_back({{plot.left - side(62, 120), y}, std::string(1, letter)});
            y += down(on_paper ? 20 : 14);
        }
    }

    const MashCourse& course_;
    const MashChartOptions& options_;
    ChartFrame frame_;
    ChartScale scale_;
    MashChart chart_;
};

} // namespace

ChartFrame paper_frame(Point offset, double unit) {
    const ChartFrame screen;
    const auto across = [&](int pixels) { return offset.x + truncate(pixels * unit); };
    const auto down = [&](int pixels) { return offset.y + truncate(pixels * unit); };
    const auto& plot = screen.plot;
    return {{across(plot.left), down(plot.top), across(plot.right), down(plot.bottom)},
            across_on_paper * unit,
            down_on_paper * unit,
            unit,
            true};
}

MashChart mash_chart(const MashCourse& course, const MashChartOptions& options, const ChartFrame& frame) {
    return ChartMaker(course, options, frame).made();
}

std::string words_of_mash_chart(const MashCourse& course, TemperatureUnits units) {
    const auto* const degree = units == TemperatureUnits::celsius ? "%d C for " : "%d F for ";
    std::string words = "Mash chart";
    const auto* separator = ": ";
    for (const auto& step : course.names) {
        const auto name = std::string_view(step.name).substr(step.name.starts_with("- ") ? 2 : 0);
        words += separator + std::string(name) + ' ' + formatted(degree, shown_degrees(step.degrees, units)) +
                 formatted("%d min", step.minutes);
        separator = ", ";
    }
    return words + formatted("; %d minutes in all", course.minutes);
}

} // namespace wortlex
