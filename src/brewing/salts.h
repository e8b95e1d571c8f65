// What brewing salts add to a water. Ions are ppm, rates grams per gallon.
#pragma once

#include "records/water/water_analysis.h"

#include <array>

namespace wortlex {

/// Ions that a gram per gallon adds, in ppm.
struct SaltEffect {
    Salt salt;
    float WaterRecord::*cation;
    float cation_factor;
    float WaterRecord::*anion;
    float anion_factor;
};

/// The salts that a brewer can add, in the order in which they are always told.
inline constexpr std::array salt_effects = {
    SaltEffect{Salt::gypsum, &WaterRecord::calcium, 61.5F, &WaterRecord::sulfate, 147.4F},
    SaltEffect{Salt::epsom_salt, &WaterRecord::magnesium, 26.1F, &WaterRecord::sulfate, 103.0F},
    SaltEffect{Salt::canning_salt, &WaterRecord::sodium, 103.9F, &WaterRecord::chloride, 160.3F},
    SaltEffect{Salt::baking_soda, &WaterRecord::sodium, 72.0F, &WaterRecord::bicarbonate, 189.0F},
    SaltEffect{Salt::calcium_chloride, &WaterRecord::calcium, 72.0F, &WaterRecord::chloride, 127.4F},
    SaltEffect{Salt::chalk, &WaterRecord::calcium, 105.8F, &WaterRecord::bicarbonate, 158.4F}};

/// Takes a rate into the salt's record, whose other ions stay, and into the totals.
void set_salt_rate(WaterAnalysis& analysis, const SaltEffect& salt, float rate);

/// After a change of the target, the source or the dilution: the difference, and the result, which stands on
/// the source too. The salts do not enter into the difference.
void compare_waters(WaterAnalysis& analysis);

/// The source's share of an ion after dilution.
float diluted(const WaterAnalysis& analysis, const Ion& ion);

/// All rates and what they add to nothing, the pH to neutral.
void reset_salts(WaterAnalysis& analysis);

/// Brings what is worked out into line with rates, waters and dilution; the unused salt and the pH stay.
void settle_water(WaterAnalysis& analysis);

/// What is needed of a salt for so many gallons, in grams or ounces.
float salt_quantity(float rate, float gallons, SaltUnit unit);

/// Cations and anions of a water in milliequivalents a litre, which are equal in any real one.
struct Charges {
    double cations = 0;
    double anions = 0;

    /// By no more than a tenth of the greater.
    bool are_balanced() const;
};

Charges charges_of(const WaterRecord& water);

} // namespace wortlex
