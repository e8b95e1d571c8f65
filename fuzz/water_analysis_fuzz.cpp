// A matched water, as its window shows it, prints it and draws it: whatever a file holds, no figure is shown
// that is no number.
#include "brewing/salt_proposal.h"
#include "fuzz_input.h"
#include "shown_figures.h"
#include "water/water_calculator_form.h"
#include "water/water_chart.h"
#include "water/water_totals.h"

using namespace wortlex;

namespace {

void check_chart(const WaterAnalysis& analysis) {
    for (const auto& group : water_chart(analysis).groups)
        for (const auto& bar : group.bars)
            promise(group.frame.left < bar.box.left && bar.box.right < group.frame.right &&
                    group.frame.top < bar.box.top && bar.box.top < bar.box.bottom &&
                    bar.box.bottom < group.frame.bottom);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto settings = default_program().settings;
    auto read = read_water_analysis(fuzz_bytes(data, size));
    promise(read.is_complete == (size >= water_analysis_layout.size));
    auto& analysis = read.analysis;
    const auto file = water_analysis_bytes(analysis);
    promise(water_analysis_bytes(read_water_analysis(file).analysis) == file);
    settle_water(analysis);
    Form calculator, totals;
    water_calculator_form(calculator, analysis, {}, WaterSide::tool);
    water_totals_form(totals, analysis, settings, {}, WaterSide::tool);
    check_figures(calculator);
    check_figures(totals);
    check_chart(analysis);
    propose_salts(analysis.difference, true);
    return 0;
}
