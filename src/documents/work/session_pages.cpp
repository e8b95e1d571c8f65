#include "documents/work/session_pages.h"

#include "documents/document_recalculation.h"

#include <algorithm>
#include <array>

namespace wortlex {
namespace {

bool has_schedule(const BrewDocument& document) {
    if (document.recipe_kind == RecipeKind::extract) return false;
    const auto& mash = document.simple_mash;
    return has_complex_schedule(document) ? !document.mash.used_steps().empty()
                                          : mash.saccharification.is_present() || mash.dough_in_water != 0;
}

bool has_salts(const SessionDocument& session) {
    const auto& grams = session.salt_grams;
    return !session.source_water.name.empty() ||
           std::any_of(grams.begin(), grams.end(), [](float salt) { return salt != 0; });
}

// What the brewer enters of it; the rest follows from the mash and the boil.
auto entries_of(const WaterNeeds& needs) {
    return std::array{needs.sparge,      needs.sparge_deadspace, needs.top_up,
                      needs.lauter_loss, needs.evaporation_rate, needs.kettle_deadspace,
                      needs.hopback,     needs.chiller,          needs.other};
}

bool has_water(const WaterNeeds& needs, const WaterNeeds& usual) {
    return (needs.sparge != 0 || needs.top_up != 0) && entries_of(needs) != entries_of(usual);
}

// A load puts batch size and actual gravity where nothing was recorded. Without a measure the latter is what
// the recipe aims at, and the efficiency that is shown tells of no brew day.
bool has_recording(const BrewDocument& document, const SessionDocument& session) {
    const auto& tail = session.tail;
    return document.recipe_kind != RecipeKind::extract && tail.recorded_volume != 0 &&
           (tail.recorded_volume != document.batch_size || tail.recorded_og != hop_gravity(document));
}

bool has_fermented(const SessionDocument& session) {
    return session.fermentation != FermentationLog{} || session.actual_fg != fg_not_measured;
}

bool is_bottled(const BottlingLog& log) {
    return log.bottling_day != 0 ||
           std::any_of(log.used.begin(), log.used.end(), [](auto used) { return used != 0; });
}

bool has_notes(const SessionNotes& notes) {
    return !std::all_of(notes.begin(), notes.end() - 1, [](const auto& text) { return text.empty(); });
}

} // namespace

bool is_filled(SessionPage page, const BrewDocument& document, const SessionDocument& session,
               const WaterNeeds& usual) {
    switch (page) {
    case SessionPage::ingredients:
        return !document.malts.empty() || !document.hops.empty();
    case SessionPage::mash:
        return has_schedule(document);
    case SessionPage::water_needed:
        return has_water(session.water_needs, usual);
    case SessionPage::water_profile:
        return has_salts(session);
    case SessionPage::efficiency:
        return has_recording(document, session);
    case SessionPage::fermentation:
        return has_fermented(session);
    case SessionPage::bottling:
        return is_bottled(session.bottling);
    case SessionPage::notes:
        return has_notes(session.session_notes);
    case SessionPage::inventory:
        return session.inventory_finalized != 0;
    }
    return false;
}

} // namespace wortlex
