// The ions and the pH of a water from what a laboratory reports instead: hardness and alkalinity, both in ppm
// as calcium carbonate.
#pragma once

#include "forms/form.h"
#include "records/ingredients/ingredients.h"

namespace wortlex {

/// The forms that carbon dioxide takes in water, in ppm.
struct Carbonates {
    double carbonic_acid = 0;
    double bicarbonate = 0;
    double carbonate = 0;
};

/// The share that each form has in the alkalinity at a pH, by the two dissociation constants of carbonic
/// acid.
Carbonates carbonates_of(float alkalinity, float ph);

/// In ppm, from the part of the hardness that the ion makes.
float calcium_of(float hardness);
float magnesium_of(float hardness);

/// The converters. OK stores their result in the water, which must outlive the form.
void calcium_hardness_form(Form& form, WaterRecord& water);
void magnesium_hardness_form(Form& form, WaterRecord& water);
void alkalinity_form(Form& form, WaterRecord& water);

} // namespace wortlex
