// The recipe window with 25 malts and 25 hops: what it takes to open, and from a keystroke until all figures
// are painted anew.
#include "measured_brewery.h"
#include "paint_watch.h"
#include "sample_document.h"
#include "windows/documents/recipe_window.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QLineEdit>

#include <benchmark/benchmark.h>

namespace wortlex {
namespace {

constexpr int lines = 25;
constexpr WindowInfo recipe_info = {"RECIPEDIALOG", {"Wortlex Recipe Formulation"}};

// A program with a full recipe.
struct Brewery : MeasuredBrewery {
    Brewery() {
        program.data_folder = "/nonexistent/"; // the unsaved work of a measurement is not worth keeping
        program.document.recipe = sample_document(lines, program.settings);
        program.color_table = built_in_color_table();
        program.document.file.loaded_from_file = true;
    }
};

void press(QWidget& field, int key, const QString& text) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QApplication::sendEvent(&field, &event);
    }
}

// Every keystroke makes the batch another size, and with it everything on the screen.
void keystroke(benchmark::State& state, Brewery& brewery) {
    RecipeWindow window(brewery.ports(), recipe_info, nullptr);
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.show();
    QApplication::processEvents();
    auto& field = *window.findChild<QAbstractSpinBox*>(QStringLiteral("batch_size"));
    PaintWatch figures(*window.findChild<QLineEdit*>(QStringLiteral("sg")));
    PaintWatch hops(*window.findChild<QAbstractItemView*>(QStringLiteral("hops"))->viewport());
    int size = 4;
    for (auto _ : state) {
        state.PauseTiming();
        field.selectAll();
        QApplication::processEvents();
        figures.start();
        hops.start();
        size = size % 5 + 4;
        state.ResumeTiming();
        press(field, Qt::Key_0 + size, QString::number(size));
        figures.wait();
        hops.wait();
    }
    window.hide();
}

void opening(benchmark::State& state, Brewery& brewery) {
    for (auto _ : state) {
        auto window = std::make_unique<RecipeWindow>(brewery.ports(), recipe_info, nullptr);
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        PaintWatch figures(*window->findChild<QLineEdit*>(QStringLiteral("sg")));
        window->show();
        figures.wait();
        state.PauseTiming();
        window->hide();
        window.reset();
        QApplication::processEvents();
        state.ResumeTiming();
    }
}

void run(Brewery& brewery) {
    const auto measured = [&](const char* name, void (*function)(benchmark::State&, Brewery&)) {
        benchmark::RegisterBenchmark(name, [&brewery, function](benchmark::State& state) {
            function(state, brewery);
        })->Unit(benchmark::kMillisecond);
    };
    measured("keystroke to paint", keystroke);
    measured("open the window", opening);
    benchmark::RunSpecifiedBenchmarks();
}

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    wortlex::Brewery brewery;
    wortlex::run(brewery);
    return 0;
}
