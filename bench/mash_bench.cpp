// A mash schedule of fifty steps: from a key in a step until list and chart are painted anew, its chart
// alone, and as a picture.
#include "desktop/form_widgets.h"
#include "desktop/list_view.h"
#include "desktop/painter_surface.h"
#include "mash/mash_designer_form.h"
#include "measured_brewery.h"
#include "paint_watch.h"
#include "program/picture_desk.h"
#include "windows/mash/mash_chart_window.h"

#include <QAbstractSpinBox>
#include <QImage>
#include <QVBoxLayout>

#include <filesystem>

namespace wortlex {
namespace {

MashDesign long_mash(const Settings& settings) {
    auto design = new_mash_design(settings);
    auto& mash = design.mash;
    mash.step_count = static_cast<std::int32_t>(mash_step_slots);
    mash.mash_name.assign("Fifty steps");
    for (std::size_t i = 0; i < mash_step_slots; ++i) {
        auto& step = mash.steps[i];
        step.name.assign("Step " + std::to_string(i + 1));
        step.heat_type = i > 0 && i % 2 == 0 ? StepHeat::decoction : StepHeat::direct;
        step.start_temperature = step.stop_temperature = 100 + static_cast<std::int32_t>(i);
        step.infuse_temperature = 212;
        step.rest_minutes = step.step_minutes = 5;
    }
    return design;
}

// The form of the designer, with its chart open.
struct OpenDesigner : QWidget {
    explicit OpenDesigner(MeasuredBrewery& brewery) : designer(free_designer(brewery.program.settings)) {
        designer.design = long_mash(brewery.program.settings);
        designer.owner.told = [&notices = brewery.program.notices](const MashDesign&, float) {
            notices.tell(Change::mash);
        };
        recalculate(designer);
        mash_designer_form(form, designer);
        widgets = std::make_unique<FormWidgets>(form, places(brewery.program), *this);
        auto* const layout = new QVBoxLayout(this);
        layout->addLayout(lay_out(form, *widgets, nullptr));
        open_mash_chart(
            brewery.ports(), "BATCHMASHGRAPHDIALOG", [this] { return charted(designer.design.mash); }, this);
        show();
    }
    MashDesigner designer;
    Form form;
    std::unique_ptr<FormWidgets> widgets;
};

void keystroke(benchmark::State& state) {
    MeasuredBrewery brewery;
    OpenDesigner window(brewery);
    QApplication::processEvents();
    auto& field = *window.findChild<QAbstractSpinBox*>("rest_time");
    measure_digits(state, field,
                   {window.findChild<ListView*>()->viewport(), window.findChild<QWidget*>("chart")});
    window.hide();
}

// With everything that a chart can show.
ChartDrawing full_chart(const MashDesign& design) {
    MashChartOptions options;
    options.fine_lines = options.infusion_spikes = true;
    return mash_chart_drawing(charted(design.mash), options, {0x0000FF});
}

// As a window paints it.
void draw_chart(benchmark::State& state) {
    const MeasuredBrewery brewery;
    const auto design = long_mash(brewery.program.settings);
    const auto size = full_chart(design).size;
    QImage screen(size.width, size.height, QImage::Format_RGB32);
    for (auto _ : state) {
        QPainter painter(&screen);
        PainterSurface surface(painter, size);
        full_chart(design).draw(surface);
    }
}

void write_picture(benchmark::State& state) {
    MeasuredBrewery brewery;
    const auto design = long_mash(brewery.program.settings);
    const auto path = std::filesystem::temp_directory_path() / "wortlex-measured.jpg";
    for (auto _ : state) {
        if (!save_chart(path.string(), full_chart(design), picture_desk(brewery.ports())))
            state.SkipWithError("cannot write the picture");
    }
    std::filesystem::remove(path);
}

BENCHMARK(keystroke)
    ->Name("keystroke in a step of 50 to paint, list and chart")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(draw_chart)->Name("chart of 50 steps")->Unit(benchmark::kMillisecond);
BENCHMARK(write_picture)->Name("JPEG of that chart")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    wortlex::Measurements measurements(count, arguments);
    return measurements.run();
}
