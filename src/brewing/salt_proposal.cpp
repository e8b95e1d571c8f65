#include "brewing/salt_proposal.h"

#include "base/number.h"
#include "measures/rounding.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace wortlex {
namespace {

using Ions = std::array<double, ions.size()>;
using Rates = std::array<double, salt_effects.size()>;

// What a gram of each salt adds.
Ions effect_of(const SaltEffect& salt) {
    Ions added{};
    for (std::size_t i = 0; i < ions.size(); ++i) {
        if (ions[i].ppm == salt.cation) added[i] = salt.cation_factor;
        if (ions[i].ppm == salt.anion) added[i] = salt.anion_factor;
    }
    return added;
}

double product(const Ions& a, const Ions& b) {
    double sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i) sum += a[i] * b[i];
    return sum;
}

Ions remaining(const Ions& wanted, const Rates& rates) {
    auto left = wanted;
    for (std::size_t salt = 0; salt < rates.size(); ++salt) {
        const auto added = effect_of(salt_effects[salt]);
        for (std::size_t i = 0; i < left.size(); ++i) left[i] -= rates[salt] * added[i];
    }
    return left;
}

// Equations of up to six unknowns, the right side in the last column, solved by elimination. Two salts always
// differ in an ion, so no pivot comes near 0.
std::vector<double> solved(std::vector<std::vector<double>> rows) {
    const std::size_t count = rows.size();
    for (std::size_t pivot = 0; pivot < count; ++pivot)
        for (std::size_t row = 0; row < count; ++row) {
            if (row == pivot) continue;
            const double factor = rows[row][pivot] / rows[pivot][pivot];
            for (std::size_t column = pivot; column <= count; ++column)
                rows[row][column] -= factor * rows[pivot][column];
        }
    std::vector<double> unknowns;
    for (std::size_t row = 0; row < count; ++row) unknowns.push_back(rows[row][count] / rows[row][row]);
    return unknowns;
}

// The best rates of just these salts, negative ones included, by the normal equations.
Rates least_squares(const Ions& wanted, const std::vector<std::size_t>& salts) {
    std::vector<std::vector<double>> rows;
    for (const auto salt : salts) {
        auto& row = rows.emplace_back();
        const auto added = effect_of(salt_effects[salt]);
        for (const auto other : salts) row.push_back(product(added, effect_of(salt_effects[other])));
        row.push_back(product(added, wanted));
    }
    const auto best = solved(std::move(rows));
    Rates rates{};
    for (std::size_t i = 0; i < salts.size(); ++i) rates[salts[i]] = best[i];
    return rates;
}

std::vector<std::size_t> salts_in(unsigned choice) {
    std::vector<std::size_t> salts;
    for (std::size_t salt = 0; salt < salt_effects.size(); ++salt)
        if ((choice >> salt & 1U) != 0) salts.push_back(salt);
    return salts;
}

// The best rates that are not negative are the best of the salts that they use: of the 64 choices of salts
// one of those without a negative rate is it.
Rates non_negative(const Ions& wanted, unsigned choices) {
    Rates best{};
    double least = product(wanted, wanted);
    for (unsigned choice = 1; choice < choices; ++choice) {
        const auto rates = least_squares(wanted, salts_in(choice));
        if (std::any_of(rates.begin(), rates.end(), [](double rate) { return rate < 0; })) continue;
        const auto left = remaining(wanted, rates);
        const double squares = product(left, left);
        if (!(squares < least)) continue;
        least = squares;
        best = rates;
    }
    return best;
}

} // namespace

SaltProposal propose_salts(const WaterRecord& difference, bool with_chalk) {
    static_assert(salt_effects.back().salt == Salt::chalk);
    Ions wanted{};
    for (std::size_t i = 0; i < ions.size(); ++i) wanted[i] = difference.*ions[i].ppm;
    auto rates = non_negative(wanted, 1U << (salt_effects.size() - (with_chalk ? 0 : 1)));
    SaltProposal proposal;
    for (std::size_t salt = 0; salt < rates.size(); ++salt) {
        proposal.rates[salt] = std::min(to_nearest(rates[salt], proposed_step), most_salt_rate);
        rates[salt] = proposal.rates[salt];
    }
    const auto left = remaining(wanted, rates);
    for (std::size_t i = 0; i < left.size(); ++i) proposal.remaining[i] = narrow(left[i]);
    return proposal;
}

} // namespace wortlex
