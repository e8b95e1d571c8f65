// The gravity that a grain bill gives, by either efficiency method on either base.
//
// Method #1 knows the potential of each malt: a mashed malt gives its laboratory yield, on the basis of the
// settings, times the brewhouse efficiency. Method #2 does not: any mashed malt gives its weight times the
// efficiency, which is then extract per grain weight, so that an efficiency means less under it. Malts that
// are not mashed give their potential under both. On the base of points the yields are turned into points by
// the constant sucrose value and summed; on the base of mass the extract is summed in pounds, and the gravity
// of that solution is looked for.
#pragma once

#include "documents/figures.h"
#include "records/documents/brew_document.h"

namespace wortlex {

/// Points of the wort at batch size; the caller stores them in `og_points`. Writes the points of the lines
/// and the figures. Without malts it returns 0 and touches nothing. -1 where no wort can hold the extract.
float compute_og(BrewDocument& document, RecipeFigures& figures, const Settings& settings);

/// Points over the wort size. Neither the lines nor any figures are touched.
float compute_wort_points(const BrewDocument& document, const Settings& settings);

/// The points of a pound of sucrose in a gallon of wort with `extract_pounds` in `gallons`: they fall as the
/// wort gets stronger. By the polynomial of Plato over specific gravity that brewing chemists (ASBC) fitted
/// to the tables, solved for the gravity, and a fit of a pound's points over Plato.
double variable_sucrose_value(double extract_pounds, float gallons);

/// Points at batch size at 100 % extraction, of all lines, of the mashed ones and of the others; 0 without
/// any.
float potential_points(const BrewDocument& document, const Settings& settings);
float mash_potential_points(const BrewDocument& document, const Settings& settings);
float other_potential_points(const BrewDocument& document, const Settings& settings);

/// Changes the weights of mashed lines so that the gravity that `locked_efficiency` gave stays under the
/// document's efficiency, which then is the locked one. `og_points` stays as it is.
void hold_gravity(BrewDocument& document, RecipeFigures& figures, float& locked_efficiency,
                  const Settings& settings);

/// Sums of amounts.
void total_grain_update(const BrewDocument& document, RecipeFigures& figures);
void mash_grain_update(const BrewDocument& document, RecipeFigures& figures);

/// Whether there is grain to mash in a recipe of a kind that mashes.
bool has_mashable_grain(const BrewDocument& document);

} // namespace wortlex
