// The shelf of 10,000 recipes: until its first rows are painted, until all of them are, and from a key in the
// find line until what is found is painted.
#include "base/files.h"
#include "measured_brewery.h"
#include "paint_watch.h"
#include "sample_document.h"
#include "windows/shelf/shelf_window.h"

#include <QAbstractItemView>
#include <QLineEdit>

#include <filesystem>
#include <fstream>

namespace wortlex {
namespace {

constexpr int recipes = 10000;
constexpr std::size_t lines = 8; // of malts and of hops each

struct FullFolder : MeasuredBrewery {
    FullFolder() {
        program.color_table = built_in_color_table();
        set_folder(program.folders, FolderKind::recipes, folder);
        std::filesystem::create_directories(folder);
        auto recipe = sample_document(lines, program.settings);
        for (int i = 0; i < recipes; ++i) {
            recipe.title.assign(std::string(i % 3 == 0 ? "Pale " : "Dark ") + std::to_string(i));
            recipe.malts[0].amount = static_cast<float>(4 + i % 12);
            save_quickly(recipe, folder + std::to_string(i) + ".rec");
        }
    }
    FullFolder(const FullFolder&) = delete;
    FullFolder& operator=(const FullFolder&) = delete;
    ~FullFolder() { std::filesystem::remove_all(folder); }

    // Saves for good would take minutes.
    static void save_quickly(const BrewDocument& recipe, const std::string& path) {
        const auto bytes = recipe_bytes(recipe);
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }

    std::string folder = (std::filesystem::temp_directory_path() / "wortlex-measured-shelf/").string();
};

QAbstractItemView& list_of(const ShelfWindow& window) {
    return *window.findChild<QAbstractItemView*>(QStringLiteral("recipes"));
}

void wait_for_rows(const ShelfWindow& window, int count) {
    while (list_of(window).model()->rowCount() < count) QApplication::processEvents();
}

// Until so many rows are there, and painted.
void open_until(benchmark::State& state, FullFolder& brewery, int rows) {
    for (auto _ : state) {
        auto window = std::make_unique<ShelfWindow>(brewery.ports(), Opener::main, nullptr);
        PaintWatch watch(*list_of(*window).viewport());
        window->show();
        wait_for_rows(*window, rows);
        watch.start();
        if (!watch.wait()) state.SkipWithError("nothing was painted");
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}

void press(QWidget& field, char letter) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, 0, Qt::NoModifier, QString(QLatin1Char(letter)));
        QApplication::sendEvent(&field, &event);
    }
}

// Letter after letter of a search with words and a condition.
void find(benchmark::State& state, FullFolder& brewery) {
    constexpr std::string_view typed = "pale og>1.05 dark ";
    ShelfWindow window(brewery.ports(), Opener::main, nullptr);
    window.show();
    wait_for_rows(window, recipes);
    auto& line = *window.findChild<QLineEdit*>(QStringLiteral("find"));
    std::size_t next = 0;
    measure_painting(
        state, {list_of(window).viewport()},
        [&] {
            if (next == 0) line.clear();
        },
        [&] {
            press(line, typed[next]);
            next = (next + 1) % typed.size();
        });
}

void read_alone(benchmark::State& state, FullFolder& brewery) {
    for (auto _ : state) {
        ShelfReading reading(brewery.folder, brewery.program.settings);
        while (!reading.is_done()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
        if (reading.take().size() != recipes) state.SkipWithError("recipes are missing");
    }
}

void register_shelf(FullFolder& brewery) {
    const auto measured = [](const char* name, auto&& function) {
        benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMillisecond)->UseRealTime();
    };
    measured("read 10,000 recipes", [&](benchmark::State& state) { read_alone(state, brewery); });
    measured("first rows of the shelf", [&](benchmark::State& state) { open_until(state, brewery, 1); });
    measured("all rows of the shelf", [&](benchmark::State& state) { open_until(state, brewery, recipes); });
    measured("find, a key", [&](benchmark::State& state) { find(state, brewery); });
}

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    wortlex::Measurements measurements(count, arguments);
    wortlex::FullFolder brewery;
    wortlex::register_shelf(brewery);
    return measurements.run();
}
