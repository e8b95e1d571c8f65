// A session with its pages open: from a change of the mash until all of them are painted anew.
#include "documents/opening.h"
#include "measured_brewery.h"
#include "paint_watch.h"
#include "sample_document.h"
#include "windows/documents/session_log.h"
#include "windows/documents/session_window.h"

#include <QLineEdit>

#include <memory>
#include <vector>

namespace wortlex {
namespace {

constexpr int lines = 25;
constexpr WindowInfo session_info = {"BATCH1DIALOG", {"Wortlex - Brewing Session"}};

// A brew day with a full recipe.
struct BrewDay : MeasuredBrewery {
    RecipeEditor editor;

    BrewDay() : editor{view_of_new_day(), {}, {}} {
        program.data_folder = "/nonexistent/"; // the unsaved work of a measurement is not worth keeping
        program.color_table = built_in_color_table();
        pick_recipe(editor.open, sample_document(lines, program.settings));
        program.document.file.loaded_from_file = true;
        editor.notices = &program.notices;
        start_editing(editor, {});
    }

private:
    OpenDocument view_of_new_day() {
        new_session(program, {5, 3, 2001});
        return live_document(program);
    }
};

void mash_to_paint(benchmark::State& state, BrewDay& day) {
    const auto ports = day.ports();
    std::vector<std::unique_ptr<ToolWindow>> windows;
    const auto show = [&windows](std::unique_ptr<ToolWindow> window) -> QWidget& {
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->show();
        return *windows.emplace_back(std::move(window));
    };
    const auto page = [&](RecipePageUse use) -> QWidget& {
        return show(std::make_unique<RecipePage>(day.editor, std::move(use), ports, nullptr));
    };
    show(std::make_unique<SessionWindow>(ports, session_info, nullptr));
    page(fermentation_page(day.editor, ports));
    page(bottling_page(day.editor, ports));
    page(session_notes_page(day.editor, ports));
    // What has not changed is not painted anew; these two hang on the mash.
    auto& target = *page(efficiency_page(day.editor, ports)).findChild<QLineEdit*>("water_volume");
    auto& water = *page(water_needed_page(day.editor, ports)).findChild<QLineEdit*>("mash_water");
    auto mash = day.program.document.recipe.simple_mash;
    measure_painting(
        state, {&target, &water},
        [&] { mash.dough_in_water = mash.dough_in_water > 20 ? 12 : mash.dough_in_water + 1; },
        [&] { set_simple_mash(day.editor, mash); });
    for (const auto& window : windows) window->hide();
}

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    wortlex::Measurements measurements(count, arguments);
    wortlex::BrewDay day;
    benchmark::RegisterBenchmark("change of the mash to all pages painted", [&day](benchmark::State& state) {
        mash_to_paint(state, day);
    })->Unit(benchmark::kMillisecond);
    return measurements.run();
}
