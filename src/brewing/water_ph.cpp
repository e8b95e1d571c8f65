#include "brewing/water_ph.h"

#include "base/number.h"

#include <cmath>

namespace wortlex {
namespace {

constexpr double carbonate_weight = 61017.1; // milligrams a mole

double power_of_ten(double exponent) {
    return std::pow(10.0, exponent);
}

// Both dissociations of carbonic acid at a pH.
struct Dissociation {
    double first, second;

    explicit Dissociation(double ph) : first(power_of_ten(ph - 6.38)), second(power_of_ten(ph - 10.32)) {}
    double bicarbonate(double carbon) const { return first * (carbon / (first + 1.0 + first * second)); }
};

// Positive charges less negative ones, in moles a litre, of water with `carbon` moles of bicarbonate salt.
double charge_excess(double ph, double carbon) {
    const Dissociation acid(ph);
    const double bicarbonate = acid.bicarbonate(carbon);
    return (power_of_ten(-ph) + carbon) -
           (power_of_ten(ph - 14.0) + 2 * acid.second * bicarbonate + bicarbonate);
}

double single_charge_excess(double ph, double carbon) {
    const Dissociation acid(ph);
    const float bicarbonate = narrow(acid.bicarbonate(carbon));
    const float carbonate = narrow(2.0 * narrow(acid.second * bicarbonate));
    const float positive = narrow(power_of_ten(-ph) + carbon);
    const float bound = narrow(double{carbonate} + bicarbonate);
    const float negative = narrow(power_of_ten(ph - 14.0) + bound);
    return double{positive} - negative;
}

float ph_by_bisection(double carbon, double (*excess_at)(double ph, double carbon)) {
    constexpr int most_rounds = 200;
    constexpr double close_enough = 1e-10;
    double low = neutral_ph, high = 8.35, ph = neutral_ph;
    for (int round = 0; round < most_rounds; ++round) {
        const double excess = excess_at(ph, carbon);
        (excess >= 0 ? low : high) = ph;
        ph = low + (high - low) / 2.0;
        if (std::abs(excess) <= close_enough) break;
    }
    return narrow(ph);
}

} // namespace

float ph_of_bicarbonate(float bicarbonate) {
    return bicarbonate > 0 ? ph_by_bisection(bicarbonate / carbonate_weight, charge_excess) : neutral_ph;
}

float ph_of_salts(float carbonate) {
    return carbonate > 0 ? ph_by_bisection(carbonate / carbonate_weight, single_charge_excess) : neutral_ph;
}

} // namespace wortlex
