// What a search in the handbook takes for each key, as a brewer types. To be run in the project's folder.
#include "handbook/handbook.h"

#include "base/files.h"

#include <benchmark/benchmark.h>

namespace wortlex {
namespace {

std::string read_page(std::string_view page) {
    const auto file = read_file("data/help/" + std::string(page) + ".md");
    if (!file) return {};
    std::string text;
    for (const auto byte : *file) text += static_cast<char>(byte);
    return text;
}

// Done once, when the window has come up.
void read_all(benchmark::State& state) {
    for (auto _ : state) {
        Handbook handbook(read_page);
        handbook.read_pages();
        benchmark::DoNotOptimize(handbook.topics().data());
    }
}

void search_on(benchmark::State& state, std::string_view typed) {
    Handbook handbook(read_page);
    if (handbook.search(typed).empty()) state.SkipWithError("nothing is found");
    std::size_t length = 0;
    for (auto _ : state) {
        length = length % typed.size() + 1;
        benchmark::DoNotOptimize(handbook.search(typed.substr(0, length)));
    }
}

BENCHMARK(read_all)->Name("read the handbook")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search_on, words, "water temperature of the mash")
    ->Name("search the handbook, a key")
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace wortlex
