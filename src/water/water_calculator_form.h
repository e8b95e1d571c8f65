// The form of the water profile calculator.
#pragma once

#include "forms/form.h"
#include "records/water/water_analysis.h"
#include "water/water_side.h"

namespace wortlex {

/// What the window brings. What is empty is disabled.
struct WaterActions {
    std::function<std::optional<WaterRecord>()> pick_target;
    std::function<std::optional<WaterRecord>()> pick_source;
    std::function<void()> load;
    std::function<void()> save;
    std::function<void()> show_totals;
    std::function<void()> show_graph;
    std::function<void()> suggest;
    std::function<void()> print;
    std::function<void()> help;
    std::function<void()> pressed; ///< called after a button that changes something; may be empty
};

/// Edits `analysis`, which must outlive the form. Cells are keyed by their line and ion: "target_calcium",
/// with the lines target, source (diluted), difference, each salt by its key, totals and remaining; a salt
/// has a row "gypsum_rate" besides, and cells only of the two ions that it adds.
/// A session picks no target, and its Reset leaves the pH.
void water_calculator_form(Form& form, WaterAnalysis& analysis, WaterActions actions, WaterSide side);

/// What is still to be added of an ion, in words: "met" within 5 ppm or a tenth of the target, else how much
/// more or less; empty before a target is picked.
std::string remaining_text(const WaterAnalysis& analysis, const Ion& ion);

} // namespace wortlex
