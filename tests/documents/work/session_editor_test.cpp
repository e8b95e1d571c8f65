#include "documents/opening.h"
#include "documents/under_work.h"
#include "documents/work/session_editor.h"
#include "documents/work/session_pages.h"
#include "records/documents/document_files.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

// A brew day that has begun, and a recipe to be picked for it.
struct BrewersDesk : UnderWork {
    BrewersDesk() : UnderWork(DocumentKind::session) {
        settings.grain_temperature = 71.9F;
        settings.tun_thermal_mass = 2.5F;
        start_session(editor.open, {}, {5, 3, 2001});
        start_editing(editor, {});
    }
    static BrewDocument recipe() {
        auto recipe = empty_recipe();
        recipe.title.assign("Alt");
        recipe.malts = {malt(MaltType::grain, 1.037F, 8), malt(MaltType::sugar, 1.046F, 1)};
        recipe.hops = {hop(5, 1, 60)};
        recipe.simple_mash.dough_in_water = 20;
        recipe.simple_mash.mash_out = {170, 10};
        return recipe;
    }
    void expect_mash(float dough_in, float grain, float mash_water, const char* when) const {
        const auto& needs = session.water_needs;
        expect_figures(std::array{document.simple_mash.dough_in_water, needs.grain, needs.mash_water},
                       {dough_in, grain, mash_water}, when);
    }
};

TEST(SessionEditor, APickedRecipeKeepsTheLog) {
    BrewersDesk desk;
    EXPECT_EQ(desk.session.has_recipe, 0);
    set_head_brewer(desk.editor, "Ada");
    desk.session.fermentation.primary_days = 9;
    pick_recipe(desk.editor, BrewersDesk::recipe());
    EXPECT_EQ(desk.session.has_recipe, 1);
    EXPECT_EQ(desk.session.actual_og, hop_gravity(desk.document));
    EXPECT_GT(desk.document.total_ibu, 0);
    EXPECT_EQ(std::tuple(desk.document.mash.grain_temperature, desk.document.mash.tun_thermal_mass),
              std::tuple(71, 2.5F));
    desk.expect_mash(20, 8, 5, "seeded from the recipe");
    auto second = BrewersDesk::recipe();
    second.title.assign("Bock");
    pick_recipe(desk.editor, second);
    EXPECT_EQ(desk.session.head_brewer.view(), "Ada");
    EXPECT_EQ(desk.session.fermentation.primary_days, 9);
    EXPECT_EQ(desk.editor.history.to_undo(), "Pick Recipe");
    undo(desk.editor);
    EXPECT_EQ(desk.document.title.view(), "Alt");
    undo(desk.editor);
    EXPECT_EQ(desk.session.has_recipe, 0) << "there was none yet";
    EXPECT_TRUE(desk.document.malts.empty());
}

TEST(SessionEditor, ScalingReachesMashAndWater) {
    BrewersDesk desk;
    pick_recipe(desk.editor, BrewersDesk::recipe());
    desk.session.infusions.heat_type = SimpleHeat::infusion;
    start_ingredients(desk.editor);
    set_batch_size(desk.editor, 10);
    desk.expect_mash(20, 8, 5 + desk.session.infusions.mash_out.amount / 4, "nothing is locked to it");
    undo(desk.editor);
    const float og = desk.document.og_points, infusion = desk.session.infusions.mash_out.amount;
    lock_to_batch(desk.editor, true);
    set_batch_size(desk.editor, 1); // on the way to 10
    set_batch_size(desk.editor, 10);
    EXPECT_FLOAT_EQ(desk.document.og_points, og);
    EXPECT_EQ(std::tuple(desk.document.wort_size, desk.document.hops[0].amount), std::tuple(12.0F, 2.0F));
    EXPECT_FLOAT_EQ(desk.session.infusions.mash_out.amount, infusion * 2);
    desk.expect_mash(40, 16, 10 + infusion / 2, "all of it");
    EXPECT_FLOAT_EQ(desk.session.water_needs.quarts_per_pound, (40 + infusion * 2) / 16);
}

TEST(SessionEditor, CancelOfTheIngredientsPutsBackWhatWasThere) {
    BrewersDesk desk;
    pick_recipe(desk.editor, BrewersDesk::recipe());
    desk.settings.wort_equals_batch = 1;
    const auto image = image_of(desk.editor.open);
    const auto before = ingredients_of(desk.editor.open);
    start_ingredients(desk.editor);
    EXPECT_EQ(desk.document.wort_size, 5) << "as it does in a recipe";
    lock_to_batch(desk.editor, true);
    set_batch_size(desk.editor, 10);
    desk.session.water_needs.top_up = 1;
    set_head_brewer(desk.editor, "Ada");
    put_back(desk.editor, before);
    EXPECT_TRUE(desk.document == image.recipe);
    EXPECT_EQ(desk.figures.total_grain, 9);
    EXPECT_FLOAT_EQ(desk.water.needed, 6) << "five into the mash, and what the brewer has entered since";
    EXPECT_EQ(desk.session.head_brewer.view(), "Ada");
    undo(desk.editor);
    EXPECT_EQ(desk.document.batch_size, 10) << "who cancels by mistake loses nothing";
}

TEST(SessionEditor, OnlyWhatTheBrewerEnteredFillsAPage) {
    BrewersDesk desk;
    const WaterNeeds usual{.sparge = 4, .evaporation_rate = 10};
    desk.session.water_needs = usual;
    pick_recipe(desk.editor, BrewersDesk::recipe());
    const auto filled = [&](SessionPage page) { return is_filled(page, desk.document, desk.session, usual); };
    EXPECT_FALSE(filled(SessionPage::fermentation) || filled(SessionPage::water_needed));
    desk.session.water_needs.hopback = 1;
    EXPECT_TRUE(filled(SessionPage::water_needed));
    repair_recording(desk.session, desk.document);
    EXPECT_FALSE(filled(SessionPage::efficiency)) << "all as the recipe aims at";
    desk.session.tail = {}; // cut off
    desk.session.actual_og = 1.06F;
    repair_recording(desk.session, desk.document);
    EXPECT_TRUE(filled(SessionPage::efficiency)) << "a measured gravity tells an efficiency";
    EXPECT_TRUE(filled(SessionPage::mash));
    set_kind(desk.editor, RecipeKind::extract);
    EXPECT_FALSE(filled(SessionPage::efficiency) || filled(SessionPage::mash)) << "they have no meaning";
}

} // namespace
} // namespace wortlex
