#include "mash/mash_chart_form.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::int32_t least_grid = 5, most_grid = 1000, grid_step = 5; // minutes
constexpr const char* chart_page_title = "Wortlex Mash Detail Printout";

// Disabled and not set where the schedule has nothing of the kind; the wish itself is kept.
void spike_check(Rows& rows, const char* key, const char* label, bool& option,
                 const std::function<bool()>& has) {
    rows.check(key, {[&option, has] { return option && has(); }, [&option](bool on) { option = on; }})
        .label(label)
        .enabled(has);
}

void option_rows(Form& form, const MashAsked& mash, MashChartOptions& options) {
    auto& grid = form.group();
    grid.integer("minute_grid", options.minute_grid)
        .label("Minute &Grid")
        .range(least_grid, most_grid)
        .step(grid_step)
        .outside(Outside::clamp);
    grid.choice("temperature_units", options.units, {"&Fahrenheit", "&Celsius"})
        .codes({1, 0})
        .named("Temperatures in");
    grid.check("solid_fill", options.solid_fill).label("&Solid Fill");
    form.next_column();
    auto& lines = form.group();
    lines.check("fine_lines", options.fine_lines).label("Fine &Temp");
    spike_check(lines, "decoction_spikes", "Show &Decoction Spikes", options.decoction_spikes,
                [mash] { return has_decoctions(mash()); });
    spike_check(lines, "infusion_spikes", "Show &Infusion Spikes", options.infusion_spikes,
                [mash] { return has_infusions(mash()); });
}

} // namespace

void follow_units(MashChartChoice& choice, TemperatureUnits system_units) {
    if (choice.system_units == system_units) return;
    choice.system_units = choice.options.units = system_units;
}

ChartDrawing mash_chart_drawing(const ChartedMash& mash, const MashChartOptions& options, const Pen& spikes) {
    const auto course = course_of(mash, options);
    return {mash_chart_size(course, options),
            [chart = mash_chart(course, options), spikes](Surface& surface) {
                draw_mash_chart(surface, chart, spikes);
            }};
}

void print_mash_chart(PageContext& page, const MashCourse& course, const MashChartOptions& options,
                      const Pen& spikes, ChartForm form, float scale) {
    const int height = std::max(ChartPlace::units.height, mash_chart_paper_height(course, options));
    const auto place = page.PlaceChart(form, scale, height);
    draw_mash_chart(place.surface, mash_chart(course, options, paper_frame(place.offset, place.scale)),
                    spikes);
}

PrintRequest mash_chart_printout(const ChartedMash& mash, const MashChartOptions& options,
                                 const SystemSettings& settings) {
    const float scale = settings.printer_scale;
    return {
        chart_page_title, settings.printer_scale,
        [course = course_of(mash, options), options, spikes = spike_pen(settings), scale](PageContext& page) {
            page.SetHeader(0, chart_page_title);
            print_mash_chart(page, course, options, spikes, ChartForm::alone, scale);
        }};
}

void mash_chart_form(Form& form, const MashAsked& mash, MashChartOptions& options,
                     const SystemSettings& settings, MashChartActions actions) {
    const auto drawing = [mash, &options, &settings] {
        return mash_chart_drawing(mash(), options, spike_pen(settings));
    };
    form.rows()
        .canvas(
            "chart", [drawing] { return drawing().size; },
            [drawing](Surface& surface) { drawing().draw(surface); })
        .named([mash, &options] { return words_of_mash_chart(course_of(mash(), options), options.units); });
    option_rows(form, mash, options);
    auto& buttons = form.group();
    buttons.button("print", "&Print", std::move(actions.print));
    buttons.button("jpg", "&JPG", std::move(actions.jpg));
    buttons.button("help", "&Help", std::move(actions.help));
}

} // namespace wortlex
