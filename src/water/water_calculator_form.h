// The form of the water profile calculator.
#pragma once

#include "forms/form.h"
#include "records/water/water_analysis.h"

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
    std::function<void()> changed; ///< called after each change; may be empty
};

/// The lines of waters in the grid. Each has a shown row an ion, keyed by line and ion: "target_calcium".
inline constexpr std::array water_lines = {"target", "source", "difference"};
/// Below the salts.
inline constexpr std::array sum_lines = {"totals", "remaining"};

/// Edits `analysis`, which must outlive the form. Besides the lines there is a row "gypsum_rate" a salt, and
/// one for each of the two ions that it adds: "gypsum_calcium".
void water_calculator_form(Form& form, WaterAnalysis& analysis, WaterActions actions);

/// What is still to be added of an ion, in words: "met" within 5 ppm or a tenth of the target, else how much
/// more or less; empty before a target is picked.
std::string remaining_text(const WaterAnalysis& analysis, const Ion& ion);

} // namespace wortlex
