#include "water/water_balance.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

constexpr WaterNeeds usual{.sparge = 5,
                           .sparge_deadspace = 0.5F,
                           .grain = 10,
                           .mash_water = 3,
                           .lauter_loss = 0.25F,
                           .boil_minutes = 60,
                           .evaporation_rate = 10};

Settings water_settings() {
    Settings settings;
    settings.grain_absorption = 0.2F;
    settings.cooling_shrink = 0.04F;
    return settings;
}

void expect_balance(const WaterBalance& got, const WaterBalance& expected, const char* name) {
    EXPECT_FLOAT_EQ(got.needed, expected.needed) << name;
    EXPECT_FLOAT_EQ(got.from_mash, expected.from_mash) << name;
    EXPECT_FLOAT_EQ(got.into_kettle, expected.into_kettle) << name;
    EXPECT_FLOAT_EQ(got.after_boil, expected.after_boil) << name;
    EXPECT_FLOAT_EQ(got.to_chillers, expected.to_chillers) << name;
    EXPECT_FLOAT_EQ(got.after_cooling, expected.after_cooling) << name;
}

TEST(WaterBalance, FromWhatIsPutInToTheFermenter) {
    auto settings = water_settings();
    auto needs = usual;
    expect_balance(BalanceWater(needs, true, settings), {8, 1, 5.25F, 4.725F, 4.725F, 4.536F}, "by hand");
    EXPECT_FLOAT_EQ(needs.total_into_mash, 4.5F);
    EXPECT_FLOAT_EQ(needs.grain_absorption, 2);

    needs.boil_minutes = 0;
    expect_balance(BalanceWater(needs, true, settings), {8, 1, 5.25F, 5.25F, 5.25F, 5.04F}, "no boil");

    auto extract = usual;
    extract.top_up = 4;
    expect_balance(BalanceWater(extract, false, settings), {4, 0, 4, 3.6F, 3.6F, 3.456F}, "the top-up alone");
    EXPECT_EQ(extract.total_into_mash, 0.0F) << "not worked out without a mash";

    settings.evaporation_by_volume = 1;
    auto losing = usual;
    losing.boil_minutes = 90;
    losing.evaporation_rate = 6;
    losing.kettle_deadspace = 0.5F;
    losing.hopback = 0.25F;
    losing.chiller = losing.other = 0.125F;
    expect_balance(BalanceWater(losing, true, settings), {8, 1, 5.25F, -3.75F, -4.75F, -4.56F},
                   "more boiled away than there is");
}

TEST(WaterNeeds, AreSeededFromTheScheduleInForce) {
    const Rest present{150, 20}, absent{150, 0};
    const struct {
        const char* name;
        MashKind kind;
        SimpleHeat heat;
        Rest protein, mash_out;
        bool is_complex;
        float grain, mash_water, ratio;
    } rows[] = {
        {"direct heat: the dough-in", MashKind::multi_step, SimpleHeat::direct, present, present, false, 10,
         3, 1.2F},
        {"infusions of the rests there are", MashKind::multi_step, SimpleHeat::infusion, present, present,
         false, 10, 4.75F, 1.9F},
        {"not of an absent rest", MashKind::multi_step, SimpleHeat::infusion, absent, present, false, 10,
         4.5F, 1.8F},
        {"single step: the mash-out alone", MashKind::single_step, SimpleHeat::infusion, present, present,
         false, 10, 4, 1.6F},
        {"single step without mash-out", MashKind::single_step, SimpleHeat::infusion, present, absent, false,
         10, 3, 1.2F},
        {"complex: infused steps, no decoction", MashKind::multi_step, SimpleHeat::infusion, present, present,
         true, 10, 5.5F, 2.2F},
        {"no grain keeps the ratio", MashKind::multi_step, SimpleHeat::direct, present, present, false, 0, 3,
         7},
    };
    ComplexMash complex;
    complex.step_count = 3;
    complex.steps[0].amount = 14;
    complex.steps[1].amount = 8;
    complex.steps[2].amount = 100;
    complex.steps[2].heat_type = StepHeat::decoction;
    for (const auto& row : rows) {
        SimpleMash simple;
        simple.mash_kind = row.kind;
        simple.protein = row.protein;
        simple.intermediate = absent;
        simple.saccharification = present;
        simple.mash_out = row.mash_out;
        simple.dough_in_water = 12;
        const InfusionExtras infusions{.heat_type = row.heat,
                                       .protein = {210, 1},
                                       .intermediate = {210, 50},
                                       .saccharification = {210, 2},
                                       .mash_out = {210, 4}};
        WaterNeeds needs;
        needs.quarts_per_pound = 7;
        seed_water_needs(needs, {row.grain, simple, infusions, complex, row.is_complex}, 75);
        EXPECT_EQ(needs.grain, row.grain) << row.name;
        EXPECT_FLOAT_EQ(needs.mash_water, row.mash_water) << row.name;
        EXPECT_FLOAT_EQ(needs.quarts_per_pound, row.ratio) << row.name;
        EXPECT_EQ(needs.boil_minutes, 75.0F) << row.name;
    }
}

} // namespace
} // namespace wortlex
