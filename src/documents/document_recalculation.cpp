#include "documents/document_recalculation.h"

#include "brewing/hop_bitterness.h"
#include "brewing/mash_water.h"
#include "documents/recipe_gravity.h"
#include "measures/gravity.h"

#include <algorithm>

namespace wortlex {
namespace {

HopKettle kettle_of(const BrewDocument& document, const RecipeFigures& figures) {
    return {.batch_size = document.batch_size,
            .wort_size = document.wort_size,
            .boil_minutes = document.boil_minutes,
            .target_ibu = document.target_ibu,
            .sg = hop_gravity(document),
            .tinseth_points = figures.tinseth_points};
}

void update_hops_if_any(const OpenDocument& open) {
    if (!open.document.hops.empty()) hops_update(open.document, open.figures, open.settings);
}

// The dough-in alone fills a recipe's mash, the infusions too that of a session that heats by them.
void recalculate_simple(const OpenDocument& open) {
    const auto& mash = open.document.simple_mash;
    auto& figures = open.figures;
    InfusionExtras none;
    auto& infusions = open.session != nullptr ? open.session->infusions : none;
    figures.mash.quarts =
        RecalculateSimpleInfusions(mash, infusions, mash.dough_in_water, figures.mash_grain);
    const float filled =
        infusions.heat_type == SimpleHeat::infusion ? figures.mash.quarts : mash.dough_in_water;
    figures.mash.gallons = TotalMashVolume(figures.mash_grain, filled, open.settings.grain_water_volume);
}

} // namespace

float hop_gravity(const BrewDocument& document) {
    return sg_from_points(document.og_points);
}

void hops_update(BrewDocument& document, RecipeFigures& figures, const Settings& settings) {
    const auto kettle = kettle_of(document, figures);
    document.total_ibu = figures.total_hop_ounces = 0;
    for (auto& line : document.hops) {
        line.ibu = line_ibu(line, kettle, settings);
        document.total_ibu = narrow(double{document.total_ibu} + line.ibu);
        figures.total_hop_ounces = narrow(double{figures.total_hop_ounces} + line.amount);
    }
}

void colour_update(const BrewDocument& document, RecipeFigures& figures, const Settings& settings) {
    figures.colour = beer_colour(document.malts, document.batch_size, settings.color_formula);
}

void recalculate_schedule(const OpenDocument& open) {
    auto& document = open.document;
    if (has_complex_schedule(document)) {
        open.figures.mash = RecalculateSteps(document.mash, document.simple_mash.dough_in_water,
                                             open.figures.mash_grain, open.settings);
    } else {
        recalculate_simple(open);
    }
}

void refresh_water(const OpenDocument& open) {
    if (open.session == nullptr) return;
    auto& needs = open.session->water_needs;
    const auto& document = open.document;
    seed_water_needs(needs,
                     {open.figures.mash_grain, document.simple_mash, open.session->infusions, document.mash,
                      has_complex_schedule(document)},
                     document.boil_minutes);
    *open.water = BalanceWater(needs, document.recipe_kind != RecipeKind::extract, open.settings);
}

void mash_refresh(const OpenDocument& open) {
    mash_grain_update(open.document, open.figures);
    recalculate_schedule(open);
    refresh_water(open);
}

void colour_and_mash(const OpenDocument& open) {
    colour_update(open.document, open.figures, open.settings);
    mash_refresh(open);
}

void gravity_update(BrewDocument& document, RecipeFigures& figures, const Settings& settings) {
    if (!document.malts.empty()) document.og_points = compute_og(document, figures, settings);
}

void wort_size_changed(const OpenDocument& open) {
    gravity_update(open.document, open.figures, open.settings);
    update_hops_if_any(open);
    colour_and_mash(open);
}

void batch_size_changed(const OpenDocument& open, float old_size, const RecipeLocks& locks) {
    auto& document = open.document;
    if (open.settings.wort_equals_batch != 0) document.wort_size = document.batch_size;
    gravity_update(document, open.figures, open.settings);
    update_hops_if_any(open);
    if (locks.to_batch) scale_to_batch(open, old_size, document.batch_size);
    colour_and_mash(open);
}

void efficiency_changed(const OpenDocument& open, RecipeLocks& locks) {
    auto& document = open.document;
    document.efficiency = std::clamp(document.efficiency, 0.05F, 1.0F);
    if (!document.malts.empty()) {
        if (locks.efficiency) {
            hold_gravity(document, open.figures, locks.locked_efficiency, open.settings);
            colour_and_mash(open); // the weights have changed, and with them the color
        } else {
            gravity_update(document, open.figures, open.settings);
        }
    }
    hops_update(document, open.figures, open.settings);
}

void malts_changed(const OpenDocument& open) {
    open.document.og_points = compute_og(open.document, open.figures, open.settings);
    if (open.document.malts.empty()) open.figures = {};
    total_grain_update(open.document, open.figures);
    hops_update(open.document, open.figures, open.settings);
    colour_and_mash(open);
}

void hop_added(const OpenDocument& open, std::size_t index) {
    auto& line = open.document.hops[index];
    update_hop_line(open, line);
    auto& total_ibu = open.document.total_ibu;
    auto& total_ounces = open.figures.total_hop_ounces;
    total_ibu = narrow(double{total_ibu} + line.ibu);
    total_ounces = narrow(double{total_ounces} + line.amount);
}

void hop_removed(const OpenDocument& open) {
    hops_update(open.document, open.figures, open.settings);
}

void recipe_kind_changed(const OpenDocument& open) {
    mash_refresh(open);
}

void update_hop_line(const OpenDocument& open, HopUse& line) {
    line.ibu = line_ibu(line, kettle_of(open.document, open.figures), open.settings);
}

void scale_to_batch(const OpenDocument& open, float old_size, float new_size) {
    if (!(old_size > 0 && new_size > 0)) return;
    auto& document = open.document;
    const float ratio = narrow(double{new_size} / old_size);
    const auto scale = [ratio](float& amount) { amount = narrow(double{amount} * ratio); };
    if (open.settings.wort_equals_batch == 0) scale(document.wort_size);
    for (auto& line : document.malts) scale(line.amount);
    for (auto& line : document.hops) scale(line.amount);
    for (auto& line : document.extras) scale(line.amount);
    if (open.session != nullptr) scale(document.simple_mash.dough_in_water);
    gravity_update(document, open.figures, open.settings);
    update_hops_if_any(open);
    colour_update(document, open.figures, open.settings);
    total_grain_update(document, open.figures);
    mash_grain_update(document, open.figures);
}

} // namespace wortlex
