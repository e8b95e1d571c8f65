// The Hop IBU Calculator: what it starts from, how its fields pull each other along, and its form.
#pragma once

#include "brewing/hop_bitterness.h"
#include "calculators/hop_memory.h"
#include "forms/form.h"

namespace wortlex {

/// An ounce of the hop, a pound in a brewery; kettle, SG, time and flags as last left, the first time in the
/// usual batch.
HopCalculator start_calculator(const HopUse& hop, const HopMemory& memory, const Settings& settings);

/// Keeps kettle, SG, time and flags for the next opening.
void remember_calculator(const HopCalculator& calculator, HopMemory& memory);

/// Takes a hop's alpha before and after storage, both percent.
void take_storage_loss(HopCalculator& calculator, float start_alpha, float adjusted_alpha,
                       const Settings& settings);

/// What the fields take; volumes and weights in the unit shown.
namespace calculator_range {
inline constexpr float most_alpha = 100, most_units = 1000, most_weight = 10000;
inline constexpr float least_volume = 1, most_volume = 10000;
inline constexpr float least_sg = 1, most_sg = 2;
} // namespace calculator_range

/// The edits of the fields, each with what follows from it.
void set_ounces(HopCalculator& calculator, float ounces, const Settings& settings);
void set_grams(HopCalculator& calculator, float grams, const Settings& settings);
/// Drops a storage loss figured before, as the next two do.
void set_start_alpha(HopCalculator& calculator, float alpha, const Settings& settings);
/// Set the weight. An alpha of 0 gives an infinite one.
void set_hbu(HopCalculator& calculator, float units, const Settings& settings);
void set_mbu(HopCalculator& calculator, float units, const Settings& settings);
/// No more is boiled than the batch takes: each of the two pulls the other along. Gallons; while one is typed
/// digit by digit, the other is to be put back first to what it was at the start.
void set_wort(HopCalculator& calculator, float gallons, const Settings& settings);
void set_batch(HopCalculator& calculator, float gallons, const Settings& settings);
void set_sg(HopCalculator& calculator, float sg, const Settings& settings);
/// Sets the weight.
void set_ibu(HopCalculator& calculator, float ibu, const Settings& settings);
/// Each of the two takes the other's place.
void set_first_wort(HopCalculator& calculator, bool on, const Settings& settings);
void set_mash_hop(HopCalculator& calculator, bool on, const Settings& settings);

/// The label of a volume with its unit: "Batch Size (Gal)".
std::string volume_label(std::string_view of, const Settings& settings);

struct IbuCalculatorActions {
    std::function<void()> figure_time_loss; ///< empty, as the others: disabled
    std::function<void()> choose_formula;
    std::function<void()> print;
    std::function<void()> help;
};

/// Every edit works out what follows from it. The two references must outlive the form; the formula in force
/// may change meanwhile.
void ibu_calculator_form(Form& form, HopCalculator& calculator, const Settings& settings,
                         std::string hop_name, IbuCalculatorActions actions);

/// The choice among the four formulae, written to `settings` at once; Cancel puts the earlier one back.
void formula_type_form(Form& form, Settings& settings);

} // namespace wortlex
