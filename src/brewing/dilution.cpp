#include "brewing/dilution.h"

#include "base/number.h"
#include "measures/gravity.h"
#include "measures/units.h"

namespace wortlex {
namespace {

constexpr double kilograms_per_litre = 0.998203; // water at 20 degrees C

float litres(float gallons) {
    return narrow(gallons * litres_per_gallon);
}

// In kilograms.
struct Masses {
    float wort = 0;
    float extract = 0;

    float water() const { return narrow(double{wort} - extract); }
};

Masses masses_of(const WortPart& part) {
    const float wort = narrow(litres(part.gallons) * kilograms_per_litre * part.sg);
    return {wort, narrow(wort * (sg_to_plato(part.sg) / 100.0))};
}

} // namespace

float diluted_gravity(float sg, float gallons, float water_gallons) {
    const auto masses = masses_of({gallons, sg});
    const float added = narrow(litres(water_gallons) * kilograms_per_litre);
    if (double{masses.water()} + added == 0) return plato_to_sg(sg_to_plato(sg));
    return plato_to_sg(narrow(masses.extract * 100.0 / (double{masses.wort} + added)));
}

float blended_gravity(const WortPart& first, const WortPart& second) {
    const auto one = masses_of(first), other = masses_of(second);
    const double rest = narrow(double{one.water()} + other.water());
    if (rest == 0) return plato_to_sg(0);
    const double extract = narrow(double{one.extract} + other.extract);
    return plato_to_sg(narrow(extract / (rest + extract) * 100));
}

} // namespace wortlex
