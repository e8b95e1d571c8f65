#include "databases/malt_yields.h"
#include "databases/malts.h"
#include "support/form_user.h"
#include "support/listed.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

MaltRecord malt(std::string_view name, std::string_view origin, MaltType type, float potential,
                float colour) {
    MaltRecord record;
    record.name.assign(name);
    record.origin.assign(origin);
    std::tie(record.malt_type, record.potential, record.colour) = std::tie(type, potential, colour);
    return record;
}

MaltRecord pale() {
    auto record = malt("Pale", "UK", MaltType::grain, 1.036968F, 3); // 80 % of 46.21 points
    std::tie(record.fine_yield, record.coarse_yield) = std::tuple(81.0F, 79.5F);
    std::tie(record.moisture, record.stock) = std::tuple(4.0F, 10.0F);
    return record;
}

TEST(MaltList, ShowsItsFiguresAsTheSettingsAsk) {
    Settings settings;
    settings.sg_precision = 1;
    const auto column = [&](std::size_t which) {
        const Listed malts(SaveMalts, malt_list, {pale(), malt("Sucrose", "", MaltType::sugar, 1.04621F, 0)},
                           settings);
        return malts->heads()[which].caption() + "|" + malts.column(which);
    };
    EXPECT_EQ(column(2), "Potential\n(SG pppg)| 1.0370| 1.0462|");
    settings.potential_display = PotentialDisplay::percent_yield;
    settings.yield_type = YieldType::fine_as_is;
    EXPECT_EQ(column(2), "Potential\n(% Yield - FAI)|   76.8|  100.0|") << "sugar holds no moisture";
    settings.color_units = ColorUnits::ebc_new;
    EXPECT_EQ(column(3), "EBC\nColor|    6|    0|");
    EXPECT_EQ(column(4), "Kg\nIn Stock|   4.54|     --|");
}

TEST(MaltList, SortsByItsChainsAndKeepsWhatTheOwnerMeasured) {
    Listed malts(SaveMalts, malt_list,
                 {malt("Wheat", "DE", MaltType::grain, 1.039F, 2),
                  malt("Oats", "UK", MaltType::other, 1.033F, 2),
                  malt("Wheat", "BE", MaltType::extract, 1.036F, 4), pale()});
    const auto origins = [&](std::size_t column) {
        malts->click(column);
        return malts.column(1);
    };
    EXPECT_EQ(std::tuple(origins(3), origins(0), origins(2)),
              std::tuple("UK|DE|UK|BE|", "UK|UK|BE|DE|", "UK|BE|UK|DE|"));
    malts.import(malt("Pale", "UK", MaltType::other, 1.02F, 99), malt_layout,
                 "Pale UK\nThis Malt type already exists in the database!",
                 "Replacing the item will NOT overwrite your existing inventory amounts, Gravity or Color "
                 "settings.\n\nDo you wish to replace this item?");
    malts->choose_filter(4, malts.prompts);
    malts->selected = static_cast<std::int32_t>(malts->shown_count()) - 1;
    const auto kept = *malts->selected_record();
    EXPECT_EQ(std::tuple(kept.potential, kept.colour, kept.stock, kept.fine_yield),
              std::tuple(1.036968F, 3.0F, 10.0F, 0.0F));
}

TEST(MaltYields, FollowEachOther) {
    auto yields = yields_of(pale());
    const auto expect = [&yields](float fine, float fine_wet, float coarse, float coarse_wet, float sg) {
        EXPECT_NEAR(yields.fine_dry, fine, 1e-3);
        EXPECT_NEAR(fine_as_is(yields), fine_wet, 1e-3);
        EXPECT_NEAR(coarse_dry(yields), coarse, 1e-3);
        EXPECT_NEAR(coarse_as_is(yields), coarse_wet, 1e-3);
        EXPECT_NEAR(yields.potential, sg, 1e-6);
    };
    expect(80, 76.8F, 78.5F, 75.36F, 1.036968F); // the fine yield of the potential, the difference as stored
    set_fine_as_is(yields, 48);
    expect(50, 48, 48.5F, 46.56F, 1.023105F);
    set_coarse_as_is(yields, 45.6F);
    expect(50, 48, 47.5F, 45.6F, 1.023105F);
    set_potential(yields, 1.047F);
    yields.moisture = 10;
    expect(100, 90, 97.5F, 87.75F, 1.047F);
}

TEST(MaltEntry, WritesItsYieldsAndLeavesTheRestAlone) {
    Settings settings;
    settings.color_units = ColorUnits::ebc_traditional;
    settings.potential_display = PotentialDisplay::hwe;
    auto record = pale();
    record.colour = 0.1F; // shown as 0, which would not come back
    auto before = record;
    Form form;
    malt_entry_form(form, record, settings);
    form.accept();
    EXPECT_NEAR(record.fine_yield, 80, 1e-3);
    EXPECT_NEAR(record.coarse_yield, 78.5, 1e-3);
    std::tie(before.fine_yield, before.coarse_yield) = std::tie(record.fine_yield, record.coarse_yield);
    EXPECT_EQ(record, before) << "neither colour nor potential passed through its unit";
    type(form, "potential", "193"); // half of 386 litre-degrees
    form.choose(dynamic_cast<ChoiceRow&>(form.row("malt_type")), 1);
    EXPECT_FALSE(form.row("moisture").is_enabled() || form.row("coarse_dry").is_enabled());
    form.accept();
    EXPECT_NEAR(record.fine_yield, 49.9892, 1e-3) << "of 1.02310, as a typed potential has five decimals";
    EXPECT_EQ(record.moisture, 4.0F) << "kept, though it means nothing for an extract";
}

} // namespace
} // namespace wortlex
