// The % Alcohol Calculator: two gravities, and what they tell.
#pragma once

#include "calculators/twin_rows.h"
#include "page/page.h"

namespace wortlex {

struct AlcoholCalculator {
    TwinGravity og{1.05F, 12.387F};
    TwinGravity fg{1.01F, 2.56F};
};

/// Percent, but for the residual extract.
struct AlcoholResults {
    float by_weight = 0;
    float by_volume = 0;
    float apparent_attenuation = 0;
    float real_attenuation = 0;
    TwinGravity residual;
};
AlcoholResults results_of(const AlcoholCalculator& calculator);

struct AlcoholActions {
    std::function<void()> refractometer;
    ToolActions page;
};

/// Edits `calculator`, which must outlive the form.
void alcohol_form(Form& form, AlcoholCalculator& calculator, const Settings& settings,
                  AlcoholActions actions = {});

PrintRequest alcohol_printout(const AlcoholCalculator& calculator, const Settings& settings);

} // namespace wortlex
