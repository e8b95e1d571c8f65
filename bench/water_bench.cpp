// The water profile calculator: from a key in a rate until grid and chart are painted anew, and what a
// proposal of salts takes.
#include "brewing/salt_proposal.h"
#include "measured_brewery.h"
#include "paint_watch.h"
#include "windows/water/water_calculator_window.h"

#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include <benchmark/benchmark.h>

namespace wortlex {
namespace {

QWidget& shown(const char* name) {
    for (auto* const window : QApplication::topLevelWidgets())
        if (window->objectName() == name && window->isVisible()) return *window;
    std::abort();
}

void keystroke(benchmark::State& state) {
    MeasuredBrewery brewery;
    WaterCalculatorWindow window(brewery.ports(), {"CHEMICALDIALOG", {"Water"}}, nullptr);
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.show();
    window.findChild<QPushButton*>("show_graph")->click();
    QApplication::processEvents();
    auto& field = *window.findChild<QAbstractSpinBox*>("gypsum_rate");
    PaintWatch grid(*window.findChild<QLineEdit*>("totals_sulfate"));
    PaintWatch chart(*shown("WATERGRAPHDIALOG").findChild<QWidget*>("chart"));
    int digit = 4;
    for (auto _ : state) {
        state.PauseTiming();
        field.selectAll();
        QApplication::processEvents();
        grid.start();
        chart.start();
        digit = digit % 9 + 1;
        const auto text = QString::number(digit);
        state.ResumeTiming();
        QKeyEvent press(QEvent::KeyPress, Qt::Key_0 + digit, Qt::NoModifier, text);
        QApplication::sendEvent(&field, &press);
        grid.wait();
        chart.wait();
    }
    window.close();
}

// Every choice of salts is tried, whatever the difference.
void suggest(benchmark::State& state) {
    WaterRecord difference;
    for (std::size_t i = 0; i < ions.size(); ++i) difference.*ions[i].ppm = 100;
    for (auto _ : state) benchmark::DoNotOptimize(propose_salts(difference, true));
}

BENCHMARK(keystroke)->Name("keystroke in a rate to paint, grid and chart")->Unit(benchmark::kMillisecond);
BENCHMARK(suggest)->Name("suggest salts")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
