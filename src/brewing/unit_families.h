// Families of units that are kept in step through the first unit of each, the base.
//
// The factors are those of the trade, and those of the two directions differ in places: what is typed in
// litres need not come back the same.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace wortlex {

struct FamilyUnit {
    std::string_view name;
    double (*of_base)(double base);
    double (*to_base)(double value);
};

using UnitFamily = std::span<const FamilyUnit>;

UnitFamily us_fluid_units();       ///< base: US fluid ounce
UnitFamily imperial_fluid_units(); ///< base: Imperial fluid ounce
UnitFamily weight_units();         ///< base: ounce
UnitFamily temperature_units();    ///< base: Fahrenheit
UnitFamily gravity_units();        ///< base: SG
UnitFamily pressure_units();       ///< base: psi

/// Brings all values of a family in step with the one at `given`, which stays as it is.
void follow_unit(UnitFamily family, std::span<float> values, std::size_t given);

} // namespace wortlex
