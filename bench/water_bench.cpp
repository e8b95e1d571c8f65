// The water profile calculator: from a key in a rate until grid and chart are painted anew, and what a
// proposal of salts takes.
#include "brewing/salt_proposal.h"
#include "measured_brewery.h"
#include "paint_watch.h"
#include "windows/water/water_calculator_window.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QPushButton>

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
    measure_digits(state, field,
                   {window.findChild<QLineEdit*>("totals_sulfate"),
                    shown("WATERGRAPHDIALOG").findChild<QWidget*>("chart")});
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
    wortlex::Measurements measurements(count, arguments);
    return measurements.run();
}
