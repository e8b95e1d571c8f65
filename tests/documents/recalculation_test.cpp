#include "documents/opening.h"

#include "documents/brewing.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

// A recipe that is open in a window, with all that belongs to it.
struct Brewery {
    BrewDocument document = empty_recipe();
    RecipeFigures figures;
    Settings settings = brewing_settings();
    SessionDocument session;
    WaterBalance water;
    RecipeLocks locks{.locked_efficiency = 0.75F};

    explicit Brewery(HopFormulaCode formula = HopFormulaCode::Tinseth) {
        settings.HopFormula = formula;
        document.malts = {malt(MaltType::grain, 1.037F, 8), malt(MaltType::sugar, 1.046F, 1)};
        document.malts[0].record.colour = 3;
        document.hops = {hop(5, 1, 60), hop(6, 2, 15)};
        document.extras.resize(1);
        document.extras[0].amount = 3;
        recalculate_opened(recipe());
    }

    OpenDocument recipe() { return {document, figures, settings}; }
    OpenDocument brew_day() { return {document, figures, settings, &session, &water}; }

    void expect(float og, float ibu, float mcu, const char* name) const {
        EXPECT_FLOAT_EQ(document.og_points, og) << name;
        EXPECT_FLOAT_EQ(document.total_ibu, ibu) << name;
        EXPECT_FLOAT_EQ(figures.colour.mcu, mcu) << name;
    }
};

constexpr float usual_og = 53.599926F, usual_ibu = 40.9552002F, usual_mcu = 4.8F;

TEST(Opening, WorksAllOutAnew) {
    Brewery b;
    b.expect(usual_og, usual_ibu, usual_mcu, "as stored, only worked out");
    EXPECT_FLOAT_EQ(b.figures.tinseth_points, 41.2307129F);
    EXPECT_EQ(b.figures.total_hop_ounces, 3.0F);
    EXPECT_EQ(b.figures.mash_grain, 8.0F);

    b.document.malts.clear();
    recalculate_opened(b.recipe());
    b.expect(0, 59.324791F, 0, "without malts hops are boiled in water");
    EXPECT_EQ(b.figures.tinseth_points, 0.0F);
    EXPECT_EQ(b.figures.total_grain, 0.0F);
}

TEST(Opening, WortFollowsTheBatchOfARecipeFirst) {
    Brewery b(HopFormulaCode::Rager);
    EXPECT_FLOAT_EQ(b.document.total_ibu, 36.7130432F);
    b.settings.wort_equals_batch = 1;
    recalculate_opened(b.brew_day());
    EXPECT_EQ(b.document.wort_size, 6.0F) << "a session keeps what it was boiled in";
    EXPECT_FLOAT_EQ(b.document.total_ibu, 36.7130432F);
    recalculate_opened(b.recipe());
    EXPECT_EQ(b.document.wort_size, 5.0F);
    EXPECT_FLOAT_EQ(b.document.total_ibu, 36.0639F);
}

TEST(Change, OfSizes) {
    Brewery wort(HopFormulaCode::Rager);
    wort.document.wort_size = 5;
    wort_size_changed(wort.recipe());
    wort.expect(usual_og, 36.0639F, usual_mcu, "wort size");

    Brewery batch;
    batch.settings.wort_equals_batch = 1;
    batch.document.batch_size = 10;
    batch_size_changed(batch.recipe(), 5, batch.locks);
    batch.expect(26.799963F, 24.6457863F, 2.4F, "batch size");
    EXPECT_EQ(batch.document.wort_size, 10.0F);
    EXPECT_EQ(batch.document.malts[0].amount, 8.0F) << "not locked to it";
    batch.document.batch_size = 0.5F;
    batch_size_changed(batch.recipe(), 10, batch.locks);
    EXPECT_EQ(batch.document.batch_size, 1.0F) << "at least a gallon";
}

TEST(Change, OfBatchSizeScalesWhatIsLockedToIt) {
    Brewery b;
    b.locks.to_batch = true;
    b.document.batch_size = 10;
    batch_size_changed(b.recipe(), 5, b.locks);
    b.expect(usual_og, usual_ibu, usual_mcu, "the same beer, twice");
    EXPECT_EQ(b.document.wort_size, 12.0F);
    EXPECT_EQ(b.document.malts[0].amount, 16.0F);
    EXPECT_EQ(b.document.hops[1].amount, 4.0F);
    EXPECT_EQ(b.document.hops[1].boil_time, 15);
    EXPECT_EQ(b.document.extras[0].amount, 6.0F);
    EXPECT_EQ(b.document.boil_minutes, 60);
    EXPECT_EQ(b.document.efficiency, 0.75F);
    EXPECT_EQ(b.figures.total_grain, 18.0F);
    EXPECT_EQ(b.figures.mash_grain, 16.0F);

    b.settings.wort_equals_batch = 1;
    scale_to_batch(b.recipe(), 10, 5);
    EXPECT_EQ(b.document.wort_size, 12.0F) << "not scaled where it follows the batch";
    EXPECT_EQ(b.document.malts[0].amount, 8.0F);
    scale_to_batch(b.recipe(), 0, 5);
    EXPECT_EQ(b.document.malts[0].amount, 8.0F) << "no size to scale from";
}

TEST(Change, OfBoilTimeIsSeenAtTheNextOther) {
    Brewery b;
    b.document.boil_minutes = 30;
    change_hop(b.recipe(), 1, [](HopUse&) {});
    EXPECT_FLOAT_EQ(b.document.total_ibu, usual_ibu) << "the other line was not asked";
    hop_removed(b.recipe());
    EXPECT_FLOAT_EQ(b.document.total_ibu, 36.6281319F);
}

TEST(Change, OfEfficiency) {
    Brewery free;
    free.document.efficiency = 0.6F;
    efficiency_changed(free.recipe(), free.locks);
    free.expect(44.719944F, 43.5481911F, usual_mcu, "the gravity falls");
    EXPECT_EQ(free.document.malts[0].amount, 8.0F);

    Brewery locked;
    locked.locks.efficiency = true;
    locked.document.efficiency = 0.6F;
    efficiency_changed(locked.recipe(), locked.locks);
    locked.expect(usual_og, usual_ibu, usual_mcu, "the gravity holds");
    EXPECT_FLOAT_EQ(locked.document.malts[0].amount, 10);
    EXPECT_EQ(locked.document.malts[1].amount, 1.0F) << "sugar does not know of efficiency";
    EXPECT_FLOAT_EQ(locked.figures.mash_grain, 10);
    EXPECT_FLOAT_EQ(locked.figures.total_grain, 11);
    EXPECT_EQ(locked.locks.locked_efficiency, 0.6F);

    for (const auto& [typed, kept] : {std::pair{0.0F, 0.05F}, std::pair{1.5F, 1.0F}}) {
        free.document.efficiency = typed;
        efficiency_changed(free.recipe(), free.locks);
        EXPECT_EQ(free.document.efficiency, kept);
    }
}

TEST(Change, OfMalts) {
    Brewery b;
    b.document.malts[0].amount = 4;
    malts_changed(b.recipe());
    EXPECT_FLOAT_EQ(b.document.og_points, 31.399963F);
    EXPECT_FLOAT_EQ(b.figures.colour.mcu, 2.4F);
    EXPECT_EQ(b.figures.total_grain, 5.0F);
    EXPECT_EQ(b.figures.mash_grain, 4.0F);
    b.document.malts.clear();
    malts_changed(b.recipe());
    b.expect(0, 59.324791F, 0, "the last malt removed");
    EXPECT_EQ(b.figures.mash_grain, 0.0F);
}

TEST(Change, OfAHopLineKeepsTheTotalsUpByDifference) {
    Brewery b;
    b.document.total_ibu = 100; // not the sum of the lines
    b.figures.total_hop_ounces = 10;
    b.document.og_points = 10; // Tinseth reads the boil's, which stands
    change_hop(b.recipe(), 0, [](HopUse& line) { line.amount = 2; });
    EXPECT_FLOAT_EQ(b.document.hops[0].ibu, 37.3868676F);
    EXPECT_FLOAT_EQ(b.document.total_ibu, 118.6934338F);
    EXPECT_EQ(b.figures.total_hop_ounces, 11.0F);
    hop_removed(b.recipe());
    EXPECT_FLOAT_EQ(b.document.total_ibu, 59.6486321F);
    EXPECT_EQ(b.figures.total_hop_ounces, 4.0F);
}

TEST(MashRefresh, FillsTheMashByTheScheduleInForce) {
    Brewery b;
    auto& mash = b.document.simple_mash;
    mash.mash_kind = MashKind::single_step;
    mash.saccharification = {152, 60};
    mash.mash_out = {168, 10};
    mash.dough_in_water = 10;
    b.session.infusions.mash_out.temperature = 210;
    b.session.infusions.heat_type = SimpleHeat::infusion;
    b.session.water_needs.top_up = 1;

    mash_refresh(b.brew_day());
    EXPECT_FLOAT_EQ(b.figures.mash.quarts, 14.4190476F);
    EXPECT_FLOAT_EQ(b.figures.mash.gallons, 4.2447619F);
    EXPECT_FLOAT_EQ(b.water.needed, 4.6047619F);
    EXPECT_EQ(b.session.water_needs.grain, 8.0F);
    EXPECT_EQ(b.session.water_needs.boil_minutes, 60.0F);

    b.session.infusions.heat_type = SimpleHeat::direct;
    mash_refresh(b.brew_day());
    EXPECT_FLOAT_EQ(b.figures.mash.gallons, 3.14F) << "direct heat: the dough-in alone";
    EXPECT_FLOAT_EQ(b.water.needed, 3.5F);

    b.document.recipe_kind = RecipeKind::extract;
    recipe_kind_changed(b.brew_day());
    EXPECT_EQ(b.water.needed, 1.0F) << "extract: the top-up alone";

    mash_refresh(b.recipe());
    EXPECT_FLOAT_EQ(b.figures.mash.gallons, 3.14F) << "a recipe has no infusions";

    b.document.mash.step_count = 1;
    b.document.mash.steps[0].start_temperature = 150;
    b.document.mash_flags = 0x20; // simple, saved under Method #2
    mash_refresh(b.recipe());
    EXPECT_EQ(b.document.mash.steps[0].amount, 10.0F) << "the whole byte counts";
}

} // namespace
} // namespace wortlex
