// The windows of a recipe and of a session with 25 malts and 25 hops: what they take to open, and from a
// keystroke until all figures are painted anew.
#include "measured_brewery.h"
#include "paint_watch.h"
#include "sample_document.h"
#include "windows/documents/recipe_window.h"
#include "windows/documents/session_window.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QLineEdit>

#include <algorithm>

namespace wortlex {
namespace {

constexpr int lines = 25;
template <class Window>
constexpr WindowInfo window_of = {"RECIPEDIALOG", {"Wortlex Recipe Formulation"}};
template <>
constexpr WindowInfo window_of<SessionWindow> = {"BATCH1DIALOG", {"Wortlex - Brewing Session"}};

// A program with a full recipe.
struct Brewery : MeasuredBrewery {
    Brewery() {
        program.data_folder = "/nonexistent/"; // the unsaved work of a measurement is not worth keeping
        program.document.recipe = sample_document(lines, program.settings);
        program.color_table = built_in_color_table();
        program.document.file.loaded_from_file = true;
    }
};

// The brew day of that recipe, in another window.
struct BrewDay : Brewery {
    BrewDay() {
        program.document.kind = DocumentKind::session;
        program.document.session = new_session(program.document.recipe);
        program.document.session.has_recipe = 1;
        program.document.session.tail.fg_by_refractometer = 1; // the search for it takes longest
    }
};

template <class Window>
std::unique_ptr<Window> made(Brewery& brewery) {
    auto window = std::make_unique<Window>(brewery.ports(), window_of<Window>, nullptr);
    window->setAttribute(Qt::WA_DeleteOnClose, false);
    return window;
}

// Every keystroke makes the batch another size, and with it everything on the screen.
void type_sizes(benchmark::State& state, const QWidget& page, QWidget& last) {
    measure_digits(state, *page.findChild<QAbstractSpinBox*>(QStringLiteral("batch_size")),
                   {&last, page.findChild<QAbstractItemView*>(QStringLiteral("hops"))->viewport()}, 4, 8);
}

void keystroke(benchmark::State& state) {
    Brewery brewery;
    const auto window = made<RecipeWindow>(brewery);
    window->show();
    type_sizes(state, *window, *window->findChild<QLineEdit*>(QStringLiteral("sg")));
    window->hide();
}

// The first cell tells the gravity, which every size changes.
void strip_keystroke(benchmark::State& state) {
    Brewery brewery;
    const auto window = made<RecipeWindow>(brewery);
    window->show();
    const auto* const strip = window->findChild<QWidget*>(QStringLiteral("result_strip"));
    type_sizes(state, *window, *strip->findChild<QWidget*>());
    window->hide();
}

// Until the window behind the page shows the gravity too.
void session_keystroke(benchmark::State& state) {
    BrewDay brewery;
    const auto window = made<SessionWindow>(brewery);
    window->show();
    window->findChild<QAbstractButton*>(QStringLiteral("ingredients"))->click();
    const auto pages = QApplication::topLevelWidgets();
    const auto page = std::find_if(pages.begin(), pages.end(), [](const QWidget* each) {
        return each->isVisible() && each->objectName() == QLatin1String("BATCHRECIPEDIALOG");
    });
    type_sizes(state, **page, *window->findChild<QLineEdit*>(QStringLiteral("est_og")));
    window->hide();
    QApplication::processEvents();
}

template <class Window, class Of>
void opening(benchmark::State& state, const char* figure) {
    Of brewery;
    for (auto _ : state) {
        auto window = made<Window>(brewery);
        PaintWatch figures(*window->template findChild<QLineEdit*>(QString::fromLatin1(figure)));
        window->show();
        figures.wait();
        state.PauseTiming();
        window->hide();
        window.reset();
        QApplication::processEvents();
        state.ResumeTiming();
    }
}

void add_benchmarks() {
    const auto measured = [](const char* name, void (*function)(benchmark::State&)) {
        benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMillisecond);
    };
    measured("keystroke to paint", keystroke);
    measured("keystroke to the strip painted", strip_keystroke);
    measured("open the window", [](benchmark::State& state) { opening<RecipeWindow, Brewery>(state, "sg"); });
    measured("keystroke on a session's ingredients to paint", session_keystroke);
    measured("open a session",
             [](benchmark::State& state) { opening<SessionWindow, BrewDay>(state, "actual_og"); });
}

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    wortlex::Measurements measurements(count, arguments);
    wortlex::add_benchmarks();
    return measurements.run();
}
