// The brewer's tools: the search for a reading that fits, what each takes to open, and from a keystroke until
// its figures are painted anew.
#include "brewing/refractometer.h"
#include "measured_brewery.h"
#include "paint_watch.h"
#include "windows/calculators/brewers_tools.h"

#include <QAbstractSpinBox>
#include <QLineEdit>

namespace wortlex {
namespace {

struct Brewery : MeasuredBrewery {
    Brewery() {
        image.sg_precision = 2; // every keystroke is to change the figure
        program.settings = settings_from(image);
    }
};

using Make = ToolWindow* (*)(const WindowPorts&, const WindowInfo&, QWidget*);

// A tool, the field that is typed in and the figure that follows.
struct MeasuredTool {
    const char* name;
    Make make;
    const char* field;
    const char* figure;
};

constexpr std::array tools = {
    MeasuredTool{"hydrometer", make_hydrometer, "current_plato", "corrected_sg"},
    MeasuredTool{"raw wort", make_raw_wort_gravity, "brix", "gravity_sg"},
    MeasuredTool{"fermentation", make_fermentation_gravity, "brix", "gravity_sg"},
    MeasuredTool{"refractometer alcohol", make_refractometer_alcohol, "brix", "by_volume"},
    MeasuredTool{"alcohol", make_alcohol, "og_plato", "by_volume"},
    MeasuredTool{"dilution", make_dilution, "wort_gallons", "diluted_sg"},
    MeasuredTool{"boil off", make_boil_off, "wort_gallons", "after_gallons"},
    MeasuredTool{"carbonation", make_carbonation, "beer_gallons", "grams"},
    MeasuredTool{"units", make_units, "us_gallons", "us_liter"}};

QLineEdit& line_of(const QWidget& window, const char* key) {
    auto* const field = window.findChild<QWidget*>(QString::fromLatin1(key));
    auto* const line = qobject_cast<QLineEdit*>(field);
    return line != nullptr ? *line : *field->findChild<QLineEdit*>();
}

std::unique_ptr<ToolWindow> made(Brewery& brewery, const MeasuredTool& tool) {
    const auto ports = brewery.ports();
    std::unique_ptr<ToolWindow> window(tool.make(ports, {"TOOL", {"Tool"}}, nullptr));
    window->setAttribute(Qt::WA_DeleteOnClose, false);
    return window;
}

void keystroke(benchmark::State& state, Brewery& brewery, const MeasuredTool& tool) {
    const auto window = made(brewery, tool);
    window->show();
    QApplication::processEvents();
    auto& field = *window->findChild<QAbstractSpinBox*>(QString::fromLatin1(tool.field));
    int digit = 4;
    measure_painting(
        state, {&line_of(*window, tool.figure)},
        [&] {
            field.selectAll();
            press_digit(field, 4);
        },
        [&] {
            digit = (digit + 1) % 10;
            press_digit(field, digit);
        });
    window->close();
}

void opening(benchmark::State& state, Brewery& brewery, const MeasuredTool& tool) {
    for (auto _ : state) {
        const auto window = made(brewery, tool);
        PaintWatch figure(line_of(*window, tool.figure));
        window->show();
        figure.wait();
        state.PauseTiming();
        window->close();
        QApplication::processEvents();
        state.ResumeTiming();
    }
}

// Gravities that no reading fits: all the steps there are.
void search(benchmark::State& state, Brewery& brewery, float (*find)(float, float, const Settings&)) {
    for (auto _ : state) benchmark::DoNotOptimize(find(5, 300, brewery.program.settings));
}

void add_benchmarks(Brewery& brewery) {
    const auto measured = [](const std::string& name, auto function) {
        benchmark::RegisterBenchmark(name.c_str(), function)->Unit(benchmark::kMillisecond);
    };
    measured("search for an implied reading, worst case",
             [&](benchmark::State& state) { search(state, brewery, implied_reading); });
    measured("search for a fermenting reading, worst case",
             [&](benchmark::State& state) { search(state, brewery, implied_fermenting_reading); });
    for (const auto& tool : tools) {
        measured(std::string("keystroke to paint, ") + tool.name,
                 [&](benchmark::State& state) { keystroke(state, brewery, tool); });
        measured(std::string("open ") + tool.name,
                 [&](benchmark::State& state) { opening(state, brewery, tool); });
    }
}

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    wortlex::Measurements measurements(count, arguments);
    wortlex::Brewery brewery;
    add_benchmarks(brewery);
    return measurements.run();
}
