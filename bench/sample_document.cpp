#include "sample_document.h"

#include "base/number.h"

namespace wortlex {
namespace {

MaltUse malt(std::size_t i) {
    MaltUse line;
    line.record.name.assign(std::to_string(i) + ". malt");
    line.record.malt_type = i % 5 == 4 ? MaltType::sugar : MaltType::grain;
    line.record.potential = 1.036F;
    line.record.colour = narrow(2.0 + 3.0 * static_cast<double>(i % 20));
    line.record.moisture = 4.0F;
    line.record.fine_yield = 77.9F;
    line.record.coarse_yield = 76.4F;
    line.amount = narrow(10.0 / static_cast<double>(i + 1));
    return line;
}

HopUse hop(std::size_t i) {
    HopUse line;
    line.record.name.assign(std::to_string(i) + ". hop");
    set_form(line.record, static_cast<HopForm>(i % 3));
    line.record.alpha = line.alpha = 5.5F;
    line.amount = 0.25F;
    line.boil_time = static_cast<std::int16_t>(i % 63);
    return line;
}

void fill(ComplexMash& mash) {
    mash.step_count = 20;
    for (int i = 0; i < mash.step_count; ++i) {
        auto& step = mash.steps[static_cast<std::size_t>(i)];
        step.heat_type = static_cast<StepHeat>(i % 3);
        step.start_temperature = step.stop_temperature = 110 + 2 * i;
        step.infuse_temperature = 205;
        step.rest_minutes = 10;
        step.ratio = 1.0F;
    }
}

} // namespace

BrewDocument sample_document(std::size_t lines, const Settings& settings) {
    auto document = new_document(settings, ScheduleKind::complex);
    document.title.assign("Measured");
    for (std::size_t i = 0; i < lines; ++i) {
        document.malts.push_back(malt(i));
        document.hops.push_back(hop(i));
    }
    document.simple_mash.dough_in_water = 16;
    fill(document.mash);
    return document;
}

} // namespace wortlex
