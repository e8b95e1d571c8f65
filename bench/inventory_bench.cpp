// The inventory of a session on full databases: its analysis, and its booking in a folder in memory, where
// flushing costs nothing.
#include "base/ports/quiet_prompts.h"
#include "documents/work/inventory_analysis.h"
#include "program/inventory.h"
#include "program/program.h"
#include "sample_document.h"

#include <benchmark/benchmark.h>
#include <filesystem>

namespace wortlex {
namespace {

struct WillingUser : QuietPrompts {
    Answer ask_yes_no(const Message& question) override {
        return question.text.starts_with("Do you really") ? Answer::yes : Answer::no;
    }
};

struct NobodyChooses : Files {
    std::optional<std::string> choose_to_open(const FileChoice&) override { return std::nullopt; }
    std::optional<std::string> choose_to_save(const FileChoice&) override { return std::nullopt; }
};

// Full of entries, of which the lines' own are the last.
template <class Record, class Lines>
void fill(Database<Record>& database, const Lines& lines) {
    database.count = static_cast<std::int32_t>(database_slots);
    for (std::size_t i = 0; i < database_slots; ++i)
        database.slots[i].name.assign("Entry " + std::to_string(i));
    auto slot = database.slots.rbegin();
    for (const auto& line : lines) {
        *slot = line.record;
        (slot++)->stock = 1e6F;
    }
}

struct FullBrewery {
    std::string folder =
        std::filesystem::exists("/dev/shm") ? "/dev/shm/wortlex-measured-stock/" : "wortlex-measured-stock/";
    SystemSettings image = WriteDefaultSettings();
    Program program;
    WillingUser prompts;
    NobodyChooses files;
    DocumentImage saved;

    FullBrewery() {
        std::filesystem::create_directories(folder);
        program.data_folder = folder;
        program.settings = settings_from(image);
        new_session(program, {5, 3, 2001});
        auto& recipe = program.document.recipe;
        recipe = sample_document(25, program.settings);
        Stocks stocks;
        fill(stocks.malts, recipe.malts);
        fill(stocks.hops, recipe.hops);
        fill(stocks.extras, recipe.extras);
        fill(stocks.yeasts, yeast_lines(recipe));
        SaveMalts(folder, stocks.malts);
        SaveHops(folder, stocks.hops);
        SaveExtras(folder, stocks.extras);
        SaveYeasts(folder, stocks.yeasts);
        program.document.file = {.path = folder + "day.brw", .loaded_from_file = true};
    }
    FullBrewery(const FullBrewery&) = delete;
    FullBrewery& operator=(const FullBrewery&) = delete;
    ~FullBrewery() { std::filesystem::remove_all(folder); }
};

void analyze(benchmark::State& state) {
    const FullBrewery brewery;
    for (auto _ : state) {
        Stocks stocks;
        LoadStocks(brewery.folder, stocks);
        benchmark::DoNotOptimize(
            analyze_inventory(brewery.program.document.recipe, stocks, brewery.program.settings));
    }
}

void finalize(benchmark::State& state) {
    FullBrewery brewery;
    auto& program = brewery.program;
    RecipeEditor editor{live_document(program), {}, {}};
    DocumentSaving saving{editor, program.document.file, brewery.saved, brewery.files, brewery.prompts, ""};
    for (auto _ : state) {
        program.document.session.inventory_finalized = 0;
        if (!finalize_inventory(program, saving)) state.SkipWithError("nothing was booked");
    }
}

BENCHMARK(analyze)->Unit(benchmark::kMillisecond);
BENCHMARK(finalize)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace wortlex
