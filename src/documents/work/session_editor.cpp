#include "documents/work/session_editor.h"

#include "brewing/water_balance.h"
#include "documents/opening.h"

#include <utility>

namespace wortlex {
namespace {

// The water that the mash needs; what the brewer has entered beside it stays.
void put_back_seed(WaterNeeds& needs, const WaterNeeds& before) {
    needs.grain = before.grain;
    needs.mash_water = before.mash_water;
    needs.quarts_per_pound = before.quarts_per_pound;
    needs.boil_minutes = before.boil_minutes;
}

} // namespace

void set_brew_date(RecipeEditor& editor, const CalendarDate& date) {
    edit(editor, "Date Of Brewing", [&] { set_brew_date(*editor.open.session, date); });
}

void set_head_brewer(RecipeEditor& editor, std::string_view windows1252) {
    edit(
        editor, "Brewer(s) Name", [&] { editor.open.session->head_brewer.assign(windows1252); },
        "head_brewer");
}

void set_assistant_brewer(RecipeEditor& editor, std::string_view windows1252) {
    edit(
        editor, "Asst. Brewer(s) Name", [&] { editor.open.session->assistant_brewer.assign(windows1252); },
        "assistant_brewer");
}

void pick_recipe(RecipeEditor& editor, BrewDocument recipe) {
    edit(editor, "Pick Recipe", [&] { pick_recipe(editor.open, std::move(recipe)); });
}

void start_ingredients(RecipeEditor& editor) {
    auto& document = editor.open.document;
    const auto& settings = editor.open.settings;
    end_edit(editor);
    editor.view = {.locks = {.locked_efficiency = document.efficiency},
                   .show_potential = shows_potentials(settings),
                   .selected_malt = 0,
                   .selected_hop = 0,
                   .selected_extra = 0};
    if (settings.wort_equals_batch != 0 && document.wort_size != document.batch_size)
        set_wort_size(editor, document.batch_size);
}

Ingredients ingredients_of(const OpenDocument& open) {
    return {open.document, open.figures, open.session->infusions, open.session->water_needs};
}

void put_back(RecipeEditor& editor, const Ingredients& before) {
    const auto& open = editor.open;
    end_edit(editor);
    edit(editor, "Cancel Edit Ingredients", [&] {
        auto recipe = before.recipe;
        keep_saved_marks(recipe, open.document);
        open.document = std::move(recipe);
        open.figures = before.figures;
        open.session->infusions = before.infusions;
        put_back_seed(open.session->water_needs, before.water_needs);
        const bool has_mash = open.document.recipe_kind != RecipeKind::extract;
        *open.water = BalanceWater(open.session->water_needs, has_mash, open.settings);
    });
}

} // namespace wortlex
