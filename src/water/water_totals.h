// Water Totals: the quantities of salts for the water of the mash and of the sparge.
#pragma once

#include "forms/form.h"
#include "page/page.h"
#include "records/water/water_analysis.h"
#include "settings/settings.h"
#include "water/water_side.h"

namespace wortlex {

struct WaterTotalsActions {
    std::function<void()> print;
    std::function<void()> help;
};

/// Edits the volumes of `analysis`, each in its two units, and the unit of the quantities. The volumes of a
/// session are only shown. Both must outlive the form.
void water_totals_form(Form& form, WaterAnalysis& analysis, const Settings& settings,
                       WaterTotalsActions actions, WaterSide side);

/// What stands above the quantities for the mash, and for the sparge.
std::array<std::string, 2> water_adjustment_heads(const WaterAnalysis& analysis, const Settings& settings);

/// The body of the page, below its headers.
void print_water_adjustment(PageContext& page, const WaterAnalysis& analysis, const Settings& settings);

PrintRequest water_adjustment_printout(const WaterAnalysis& analysis, const Settings& settings);

} // namespace wortlex
