#include "documents/opening.h"

#include "base/number.h"
#include "brewing/calendar.h"
#include "documents/recipe_gravity.h"

#include <utility>

namespace wortlex {

void recalculate_beer(const OpenDocument& open) {
    auto& document = open.document;
    if (open.settings.wort_equals_batch != 0 && open.session == nullptr)
        document.wort_size = document.batch_size;
    open.figures = {};
    total_grain_update(document, open.figures);
    document.og_points = compute_og(document, open.figures, open.settings);
    hops_update(document, open.figures, open.settings);
    colour_update(document, open.figures, open.settings);
}

void recalculate_opened(const OpenDocument& open) {
    recalculate_beer(open);
    mash_refresh(open);
}

bool shows_potentials(const Settings& settings) {
    return settings.efficiency_mode < EfficiencyMode::method_2 && settings.view_actual_extract == 0;
}

OpenedRecipe open_recipe_window(const OpenDocument& open, bool loaded_from_file) {
    auto& document = open.document;
    if (!loaded_from_file) document.efficiency = open.settings.efficiency;
    recalculate_opened(open);
    return {.locks = {.locked_efficiency = document.efficiency},
            .show_potential = shows_potentials(open.settings),
            .saved = snapshot_document(open, SnapshotScope::with_schedule)};
}

void start_session(const OpenDocument& open, const WaterNeeds& usual, const CalendarDate& today) {
    const auto& settings = open.settings;
    open.document = new_session_recipe(settings);
    open.figures = {};
    auto& session = *open.session = new_session(open.document);
    session.head_brewer = settings.brewer_name;
    session.assistant_brewer = settings.assistant_name;
    set_brew_date(session, settings.new_session_date == NewSessionDate::tomorrow ? next_day(today) : today);
    session.water_needs = usual;
    mash_refresh(open);
}

void pick_recipe(const OpenDocument& open, BrewDocument recipe) {
    auto& document = open.document = std::move(recipe);
    auto& session = *open.session;
    document.mash.grain_temperature = truncate(open.settings.grain_temperature);
    document.mash.tun_thermal_mass = open.settings.tun_thermal_mass; // as a session that is read takes it
    session.has_recipe = 1;
    recalculate_opened(open);
    session.actual_og = hop_gravity(document);
}

} // namespace wortlex
