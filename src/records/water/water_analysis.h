// A water matched to another by brewing salts, and its file.
#pragma once

#include "records/ingredients/ingredients.h"

namespace wortlex {

/// In the order of the records. The unused one has no name: it is carried, summed and saved with the others.
enum class Salt : std::uint8_t {
    gypsum = 0,
    epsom_salt = 1,
    canning_salt = 2,
    baking_soda = 3,
    unused = 4,
    calcium_chloride = 5,
    chalk = 6
};
inline constexpr std::size_t salt_slots = 7;

enum class SaltUnit : std::uint8_t { ounces = 0, grams = 1 };

inline constexpr float most_salt_rate = 200; ///< grams per gallon
inline constexpr float most_water = 5000;    ///< in the units of its fields, barrels for the largest
inline constexpr float most_ph_of_salts = 14;

/// Ions are ppm.
struct WaterAnalysis {
    std::array<float, salt_slots> rates{}; ///< of the salts, grams per gallon
    float mash_gallons = 0;
    float mash_quarts = 0;
    float sparge_gallons = 0;
    float sparge_quarts = 0;
    std::array<WaterRecord, salt_slots> salts; ///< what each adds at its rate
    WaterRecord target;                        ///< the water to be matched
    WaterRecord source;                        ///< the brewer's own
    WaterRecord difference;                    ///< what is to be added to the diluted source
    WaterRecord totals;                        ///< what the salts add; its pH is that of the window
    WaterRecord result;                        ///< the diluted source with the salts
    SaltUnit unit = SaltUnit::grams;           ///< of quantities
    float dilution_rate = 0;                   ///< part that ion-free water takes the place of, 0 to 1

    float& rate(Salt salt) { return rates.at(static_cast<std::size_t>(salt)); }
    float rate(Salt salt) const { return rates.at(static_cast<std::size_t>(salt)); }
    WaterRecord& added(Salt salt) { return salts.at(static_cast<std::size_t>(salt)); }
    const WaterRecord& added(Salt salt) const { return salts.at(static_cast<std::size_t>(salt)); }
};

inline constexpr auto water_analysis_layout = layout<WaterAnalysis, 2713>(
    at(0, &WaterAnalysis::rates), at(28, &WaterAnalysis::mash_gallons), at(32, &WaterAnalysis::mash_quarts),
    at(36, &WaterAnalysis::sparge_gallons), at(40, &WaterAnalysis::sparge_quarts),
    at(44, &WaterAnalysis::salts, water_layout), at(1598, &WaterAnalysis::target, water_layout),
    at(1820, &WaterAnalysis::source, water_layout), at(2042, &WaterAnalysis::difference, water_layout),
    at(2264, &WaterAnalysis::totals, water_layout), at(2486, &WaterAnalysis::result, water_layout),
    at(2708, &WaterAnalysis::unit), at(2709, &WaterAnalysis::dilution_rate));

/// What a file holds; what it lacks, and what is no number there, is 0.
struct ReadWaterAnalysis {
    WaterAnalysis analysis;
    bool is_complete = true;
};

/// Whether what was read can be a water analysis: names end, and what is entered lies within its fields.
/// What is worked out from it does not count.
bool is_plausible(const WaterAnalysis& analysis);

ReadWaterAnalysis read_water_analysis(ByteView file);
Bytes water_analysis_bytes(const WaterAnalysis& analysis);

} // namespace wortlex
