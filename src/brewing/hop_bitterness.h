// Bitterness by the four formulae: Rager ("Calculating Hop Bitterness in Beer", Zymurgy 1990), Garetz ("Using
// Hops", 1994), Tinseth (1997) and the generic one of Daniels ("Designing Great Beers", 1996). Each has three
// forms that share their steps but not all their details: of a recipe line, IBU from weight, and weight
// from IBU.
#pragma once

#include "records/documents/lines.h"
#include "settings/settings.h"

namespace wortlex {

/// As reports name a formula: the generic one by its author.
std::string_view formula_word(HopFormulaCode formula);

/// What a computation went through, for display.
struct HopFactors {
    float concentration = 1;
    float gravity = 1; ///< of Rager: the gravity adjustment plus 1
    float temperature = 1;
    float hopping_rate = 1; ///< shown nowhere and part of no result
    float utilization = 0;
    float combined = 1;
};

/// What the lines of a recipe share. Volumes are gallons; elevation is feet.
struct HopKettle {
    float batch_size = 0;
    float wort_size = 0;
    int boil_minutes = 0;
    int target_ibu = 0;
    float sg = 1;             ///< of the wort; Tinseth reads `tinseth_points` instead
    float tinseth_points = 0; ///< of the boil
    int elevation = 0;
};

/// The IBU of a recipe line by the formula in force, which an unknown code leaves as it was. A batch size of
/// 0 gives what the division gives.
float line_ibu(const HopUse& line, const HopKettle& kettle, const Settings& settings);

/// The Hop IBU Calculator: what is typed, and what follows.
struct HopCalculator {
    float start_alpha = 0;    ///< percent
    float adjusted_alpha = 0; ///< percent, after storage; the formulae read this one
    float ounces = 0;
    float grams = 0;
    float wort_volume = 0; ///< gallons
    float batch_volume = 0;
    float sg = 1.04F;
    int boil_minutes = 60;
    float ibu = 0;
    HopForm form{};
    bool is_first_wort = false;
    bool is_mash_hop = false;
    bool bag_used = false;
    bool beer_filtered = false;
    int elevation = 0; ///< feet
    HopFactors factors;
};

/// Sets `ibu` from the weight. Without utilization the table formulae leave it at its last value.
void ibu_from_weight(HopCalculator& calculator, const Settings& settings);

/// Sets the weight from `ibu`. Likewise; Garetz and Generic bring volumes of 0 or less to 1.
void weight_from_ibu(HopCalculator& calculator, const Settings& settings);

/// Home bittering units: ounces, and metric ones: grams, times alpha percent.
float hbu(float ounces, float alpha);
float mbu(float grams, float alpha);

/// The share of loss that a way of storage lets through; the default is that of airtight jars.
float storage_share(StorageKind kind);

/// The alpha left of `start_alpha` percent after `months` at `celsius`; `lost_percent` is what is lost in six
/// months at 20 degrees C. Never negative. After Garetz.
float alpha_after_storage(float start_alpha, std::int16_t months, float lost_percent, float celsius,
                          float storage_share);

} // namespace wortlex
