// One full recalculation under each method, base and hop formula, and a load and a save, by the number of
// lines.
#include "base/files.h"
#include "base/ports/quiet_prompts.h"
#include "documents/opening.h"
#include "records/documents/document_files.h"
#include "sample_document.h"

#include <benchmark/benchmark.h>
#include <filesystem>

namespace wortlex {
namespace {

Settings settings_for(EfficiencyMethod method, GravityBase base, HopFormulaCode formula) {
    auto image = WriteDefaultSettings();
    image.efficiency_method_setting = method;
    image.gravity_base = base;
    image.HopFormula = formula;
    image.yield_type = YieldType::coarse_as_is;
    return settings_from(image);
}

void recalculate(benchmark::State& state, EfficiencyMethod method, GravityBase base, HopFormulaCode formula) {
    const auto settings = settings_for(method, base, formula);
    auto document = sample_document(static_cast<std::size_t>(state.range(0)), settings);
    RecipeFigures figures;
    for (auto _ : state) {
        recalculate_opened({document, figures, settings});
        benchmark::DoNotOptimize(document.total_ibu);
    }
}

const Settings& default_settings() {
    static const Settings settings =
        settings_for(EfficiencyMethod::method_1, GravityBase::points, HopFormulaCode::Rager);
    return settings;
}

std::string measured_file() {
    return (std::filesystem::temp_directory_path() / "wortlex-measured.rec").string();
}

void load(benchmark::State& state) {
    const auto path = measured_file();
    const auto written = sample_document(static_cast<std::size_t>(state.range(0)), default_settings());
    if (!save_atomically(path, recipe_bytes(written))) state.SkipWithError("cannot write the file");
    BrewDocument document;
    for (auto _ : state) benchmark::DoNotOptimize(load_recipe(path, document, default_settings()));
    std::filesystem::remove(path);
}

// With its flush to the disk, which is most of it.
void save(benchmark::State& state) {
    const auto path = measured_file();
    auto document = sample_document(static_cast<std::size_t>(state.range(0)), default_settings());
    QuietPrompts prompts;
    for (auto _ : state) {
        if (!save_recipe(path, document, prompts)) state.SkipWithError("cannot write the file");
    }
    std::filesystem::remove(path);
}

using Method = EfficiencyMethod;
using Base = GravityBase;
using Formula = HopFormulaCode;

#define EACH_SIZE Arg(25)->Arg(100)->Arg(400)->Unit(benchmark::kMicrosecond)
BENCHMARK_CAPTURE(recalculate, method_1_points_rager, Method::method_1, Base::points, Formula::Rager)
    ->EACH_SIZE;
BENCHMARK_CAPTURE(recalculate, method_1_mass_rager, Method::method_1, Base::mass, Formula::Rager)->EACH_SIZE;
BENCHMARK_CAPTURE(recalculate, method_2_points_rager, Method::method_2, Base::points, Formula::Rager)
    ->EACH_SIZE;
BENCHMARK_CAPTURE(recalculate, method_2_mass_rager, Method::method_2, Base::mass, Formula::Rager)->EACH_SIZE;
BENCHMARK_CAPTURE(recalculate, method_1_points_garetz, Method::method_1, Base::points, Formula::Garetz)
    ->EACH_SIZE;
BENCHMARK_CAPTURE(recalculate, method_1_points_tinseth, Method::method_1, Base::points, Formula::Tinseth)
    ->EACH_SIZE;
BENCHMARK_CAPTURE(recalculate, method_1_mass_tinseth, Method::method_1, Base::mass, Formula::Tinseth)
    ->EACH_SIZE;
BENCHMARK_CAPTURE(recalculate, method_1_points_generic, Method::method_1, Base::points, Formula::Generic)
    ->EACH_SIZE;
BENCHMARK(load)->EACH_SIZE;
BENCHMARK(save)->EACH_SIZE;

} // namespace
} // namespace wortlex
