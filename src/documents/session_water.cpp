#include "documents/session_water.h"

#include "brewing/salts.h"

namespace wortlex {

WaterAnalysis water_analysis_of(const OpenDocument& open) {
    const auto& document = open.document;
    const auto& session = *open.session;
    WaterAnalysis analysis;
    analysis.rates = session.salt_grams;
    for (std::size_t i = 0; i < salt_effects.size(); ++i)
        analysis.added(salt_effects.at(i).salt) = session.salt_effects.at(i);
    analysis.target = document.water;
    analysis.source = session.source_water;
    analysis.dilution_rate = session.dilution_rate;
    analysis.totals.ph = session.tail.calculated_ph;
    analysis.unit = open.salt_unit != nullptr ? *open.salt_unit : SaltUnit::ounces;
    if (document.recipe_kind != RecipeKind::extract) {
        analysis.mash_gallons = session.water_needs.mash_water;
        analysis.sparge_gallons = session.water_needs.sparge;
    }
    analysis.mash_quarts = narrow(analysis.mash_gallons * 4.0);
    analysis.sparge_quarts = narrow(analysis.sparge_gallons * 4.0);
    settle_water(analysis);
    return analysis;
}

void keep_water_analysis(const WaterAnalysis& analysis, const OpenDocument& open) {
    auto& session = *open.session;
    session.salt_grams = analysis.rates;
    for (std::size_t i = 0; i < salt_effects.size(); ++i)
        session.salt_effects.at(i) = analysis.added(salt_effects.at(i).salt);
    session.source_water = analysis.source;
    session.dilution_rate = analysis.dilution_rate;
    session.tail.calculated_ph = analysis.totals.ph;
    if (open.salt_unit != nullptr) *open.salt_unit = analysis.unit;
}

} // namespace wortlex
