#include "documents/opening.h"

#include "documents/recipe_gravity.h"

namespace wortlex {

void recalculate_opened(const OpenDocument& open) {
    auto& document = open.document;
    if (open.settings.wort_equals_batch != 0 && open.session == nullptr)
        document.wort_size = document.batch_size;
    open.figures = {};
    total_grain_update(document, open.figures);
    document.og_points = compute_og(document, open.figures, open.settings);
    hops_update(document, open.figures, open.settings);
    colour_and_mash(open);
}

OpenedRecipe open_recipe_window(const OpenDocument& open, bool loaded_from_file) {
    auto& document = open.document;
    if (!loaded_from_file) document.efficiency = open.settings.efficiency;
    recalculate_opened(open);
    return {.locks = {.locked_efficiency = document.efficiency},
            .show_potential = open.settings.efficiency_mode < EfficiencyMode::method_2 &&
                              open.settings.view_actual_extract == 0,
            .saved = snapshot_document(open, SnapshotScope::with_schedule)};
}

void start_session(const OpenDocument& open, const WaterNeeds& usual) {
    open.document = new_session_recipe(open.settings);
    open.figures = {};
    *open.session = new_session(open.document);
    open.session->water_needs = usual;
    mash_refresh(open);
}

} // namespace wortlex
