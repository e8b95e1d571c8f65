// A hop list with as many entries as a database may have: its file, its sorts, its filters, and what a click
// on a column's head takes until the list is painted anew.
#include "base/number.h"
#include "base/ports/quiet_prompts.h"
#include "databases/catalogue.h"
#include "databases/hops.h"
#include "desktop/system_ports.h"
#include "paint_watch.h"
#include "windows/databases/list_window.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QTreeView>

#include <filesystem>
#include <random>

namespace wortlex {
namespace {

// What a list stands on, in a folder of its own.
struct Desk {
    std::string folder = (std::filesystem::temp_directory_path() / "wortlex-measured-lists/").string();
    SystemSettings image = WriteDefaultSettings();
    Settings settings = settings_from(image);
    ToolPositions positions;
    NoticeBoard notices;
    QuietPrompts prompts;
    FileDialogs files;
    Database<HopRecord> database;

    Desk() { std::filesystem::create_directories(folder); }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;
    ~Desk() { std::filesystem::remove_all(folder); }

    ListPorts ports() { return {{positions, image, notices}, files, prompts}; }
    std::unique_ptr<RecordList<HopRecord>> list() {
        return hop_list({ListSide::maintenance, settings, folder}, database);
    }
};

// Names repeat, as they do where a hop is kept in each of its forms.
HopRecord hop(int i) {
    constexpr std::array origins = {"United States", "United Kingdom", "Germany", "Czech Republic"};
    HopRecord record;
    record.name.assign(std::to_string(i / 3) + ". hop");
    record.origin.assign(origins.at(static_cast<std::size_t>(i) % origins.size()));
    record.alpha = narrow(2 + i % 160 / 10.0);
    record.usage = static_cast<HopUsage>(1 + i % 3);
    record.stock = narrow(i % 5 * 1.5);
    set_form(record, static_cast<HopForm>(i % 3));
    return record;
}

Database<HopRecord> shuffled() {
    Database<HopRecord> database;
    database.count = import_limit;
    for (int i = 0; i < import_limit; ++i) database.slots[static_cast<std::size_t>(i)] = hop(i);
    std::shuffle(database.slots.begin(), database.slots.begin() + import_limit, std::minstd_rand());
    return database;
}

void load(benchmark::State& state, Desk& desk) {
    for (auto _ : state) benchmark::DoNotOptimize(LoadHops(desk.folder, desk.database, desk.prompts));
}

// From the file to rows in order.
void open(benchmark::State& state, Desk& desk) {
    for (auto _ : state) {
        const auto list = desk.list();
        list->open(desk.prompts);
        benchmark::DoNotOptimize(list->shown_count());
    }
}

// A click on a head: sorted anew from the shuffled order, and the rows listed.
void sort(benchmark::State& state, Desk& desk, std::size_t column) {
    const auto list = desk.list();
    const auto unsorted = shuffled();
    for (auto _ : state) {
        state.PauseTiming();
        list->click(column == 0 ? 1 : 0); // so that the next click sorts upwards
        desk.database = unsorted;
        state.ResumeTiming();
        list->click(column);
        benchmark::DoNotOptimize(desk.database.slots.data());
    }
}

void fill(benchmark::State& state, Desk& desk) {
    const auto list = desk.list();
    list->open(desk.prompts);
    for (auto _ : state) list->choose_filter(0, desk.prompts);
    if (list->shown_count() != import_limit) state.SkipWithError("rows are missing");
}

void send(QWidget& to, QEvent::Type type, QPoint at, Qt::MouseButtons held) {
    QMouseEvent event(type, at, to.mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(&to, &event);
}

void click(QHeaderView& head, int column) {
    const QPoint at(head.sectionViewportPosition(column) + head.sectionSize(column) / 2, head.height() / 2);
    send(*head.viewport(), QEvent::MouseButtonPress, at, Qt::LeftButton);
    send(*head.viewport(), QEvent::MouseButtonRelease, at, Qt::NoButton);
}

// Every second click turns the order around.
void click_to_paint(benchmark::State& state, Desk& desk, int column) {
    const auto list = desk.list();
    list->open(desk.prompts);
    ListWindow window(*list, desk.ports(), Opener::main, nullptr, nullptr);
    window.show();
    auto& view = *window.findChild<QTreeView*>(QStringLiteral("list"));
    measure_painting(
        state, {view.viewport()}, [] {}, [&] { click(*view.header(), column); });
    window.hide();
}

void register_all(Desk& desk) {
    const auto measured = [](const std::string& name, auto&& function) {
        benchmark::RegisterBenchmark(name.c_str(), function)->Unit(benchmark::kMicrosecond);
    };
    measured("load", [&](benchmark::State& state) { load(state, desk); });
    measured("open", [&](benchmark::State& state) { open(state, desk); });
    measured("fill", [&](benchmark::State& state) { fill(state, desk); });
    constexpr std::array columns = {"name", "origin", "alpha", "usage", "stock", "form"};
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const std::string name = columns.at(i);
        measured("sort/" + name, [&desk, i](benchmark::State& state) { sort(state, desk, i); });
        measured("click_to_paint/" + name,
                 [&desk, i](benchmark::State& state) { click_to_paint(state, desk, static_cast<int>(i)); });
    }
}

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    wortlex::Measurements measurements(count, arguments);
    wortlex::Desk desk;
    if (!wortlex::SaveHops(desk.folder, wortlex::shuffled())) return 1;
    register_all(desk);
    return measurements.run();
}
