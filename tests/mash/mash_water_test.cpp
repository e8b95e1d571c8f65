#include "mash/mash_water.h"

#include "mash/recalculation.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

TEST(MashWater, VolumeOfAMash) {
    EXPECT_FLOAT_EQ(TotalMashVolume(10, 10, 1.32F), 3.3F);
    EXPECT_EQ(TotalMashVolume(0, 10, 1.32F), 0.0F);
    EXPECT_EQ(TotalMashVolume(10, 0, 1.32F), 0.0F);
    EXPECT_EQ(TotalMashVolume(10, 0.5F, 0.5F), 0.0F) << "never negative";
}

TEST(MashWater, StrikeTemperatureIsCutTwice) {
    const struct {
        const char* name;
        std::int32_t wanted;
        float ratio, mass;
        std::int32_t expected;
    } rows[] = {
        {"a thin pound", 150, 1, 0, 168}, {"with a heavy tun", 150, 1, 0.5F, 184},
        {"cut", 150, 1.3F, 0, 163},       {"cut before the tun and after", 150, 1.3F, 0.1F, 166},
        {"no water", 150, 0, 0.5F, 150},  {"grain hotter than the mash", 50, 1, 0, 48},
    };
    for (const auto& row : rows)
        EXPECT_EQ(StrikeTemperature(row.wanted, 60, row.ratio, row.mass), row.expected) << row.name;
}

TEST(MashWater, InfusionRaisesOrGivesNothing) {
    EXPECT_FLOAT_EQ(InfusionAmount(150, 122, 210, 10, 10), 5.6F);
    EXPECT_EQ(InfusionAmount(150, 122, 150, 10, 10), 0.0F) << "as warm as the rest";
    EXPECT_EQ(InfusionAmount(150, 122, 140, 10, 10), 0.0F) << "too cold";
    EXPECT_EQ(InfusionAmount(122, 150, 210, 10, 10), 0.0F) << "a rest below the last";
}

TEST(MashWater, DecoctionByThickness) {
    const struct {
        const char* name;
        float grain;
        std::int32_t returned;
        float thickness, expected;
    } rows[] = {
        {"as thick as the mash", 10, 210, 0, 3.96724057F},
        {"a thick one", 10, 210, 0.65F, 4.11971521F},
        {"no grain: the pull is grain alone", 0, 210, 0, 4.92327261F},
        {"returned no warmer than the mash", 10, 150, 0, 0},
    };
    for (const auto& row : rows)
        EXPECT_FLOAT_EQ(DecoctionVolume(150, 168, {row.grain, 2.5F, 0.4F}, row.returned, row.thickness),
                        row.expected)
            << row.name;
}

enum RestBits { acid = 1, protein = 2, intermediate = 4, saccharification = 8, mash_out = 16 };

SimpleMash ladder(int present, MashKind kind = MashKind::multi_step) {
    const auto rest = [present](RestBits bit, std::int32_t temperature) {
        return Rest{temperature, (present & bit) != 0 ? 20 : 0};
    };
    SimpleMash mash;
    mash.mash_kind = kind;
    mash.acid = rest(acid, 104);
    mash.protein = rest(protein, 122);
    mash.intermediate = rest(intermediate, 140);
    mash.saccharification = rest(saccharification, 152);
    mash.mash_out = rest(mash_out, 168);
    return mash;
}

TEST(SimpleSchedule, EachInfusionFromTheRestBefore) {
    constexpr auto multi = MashKind::multi_step, single = MashKind::single_step;
    constexpr int all = acid | protein | intermediate | saccharification | mash_out;
    const struct {
        const char* name;
        MashKind kind;
        int present;
        std::int32_t to_saccharification, to_mash_out;
        std::array<float, 4> amounts;
        float quarts;
    } rows[] = {
        // clang-format off
        {"all rests", multi, all, 210, 210, {2.4545455F, 3.71688318F, 3.75960588F, 8.35468006F}, 28.2857151F},
        {"partial mash is as multi step", MashKind::partial_mash, all, 210, 210, {2.4545455F, 3.71688318F,
         3.75960588F, 8.35468006F}, 28.2857151F},
        {"the dough-in is no rest to start from", multi, all & ~acid, 210, 210, {0, 3.08571434F, 3.1211822F,
         6.93596029F}, 23.1428566F},
        {"the intermediate rest last: the dough-in twice", multi, acid | protein | intermediate, 210, 210,
         {2.4545455F, 3.71688318F, 0, 0}, 26.1714287F},
        {"the same from the acid rest", multi, acid | intermediate, 210, 210, {0, 6.17142868F, 0, 0},
         26.1714287F},
        {"protein last", multi, acid | protein, 210, 210, {2.4545455F, 0, 0, 0}, 12.454546F},
        {"no intermediate rest", multi, all & ~intermediate, 210, 210, {2.4545455F, 0, 7.47648907F,
         8.35468006F}, 28.2857151F},
        {"from acid to saccharification", multi, acid | saccharification, 210, 210, {0, 0, 9.93103409F, 0},
         19.9310341F},
        {"from acid to mash-out", multi, acid | mash_out, 210, 210, {0, 0, 0, 18.2857151F}, 28.2857151F},
        {"nothing to infuse", multi, saccharification, 210, 210, {0, 0, 0, 0}, 10},
        {"no water temperature", multi, all, 0, 210, {2.4545455F, 3.71688318F, 0, 6.92244911F}, 23.0938778F},
        {"water as warm as the rest", multi, all, 152, 210, {2.4545455F, 3.71688318F, 0, 6.92244911F},
         23.0938778F},
        {"single step infuses the mash-out and keeps the others", single, all, 210, 210, {1.5F, 2.5F, 3.5F,
         4.57142878F}, 14.5714283F},
        {"single step without its rest", single, all & ~saccharification, 210, 210, {1.5F, 2.5F, 3.5F, 0},
         10},
        {"single step without water", single, all, 210, 0, {1.5F, 2.5F, 3.5F, 0}, 10},
        // clang-format on
    };
    for (const auto& row : rows) {
        InfusionExtras infusions{.protein = {210, 1.5F},
                                 .intermediate = {210, 2.5F},
                                 .saccharification = {row.to_saccharification, 3.5F},
                                 .mash_out = {row.to_mash_out, 4.5F}};
        const float quarts = RecalculateSimpleInfusions(ladder(row.present, row.kind), infusions, 10, 10);
        EXPECT_FLOAT_EQ(quarts, row.quarts) << row.name;
        EXPECT_FLOAT_EQ(infusions.protein.amount, row.amounts[0]) << row.name;
        EXPECT_FLOAT_EQ(infusions.intermediate.amount, row.amounts[1]) << row.name;
        EXPECT_FLOAT_EQ(infusions.saccharification.amount, row.amounts[2]) << row.name;
        EXPECT_FLOAT_EQ(infusions.mash_out.amount, row.amounts[3]) << row.name;
    }
}

TEST(SimpleSchedule, FirstRestByKind) {
    EXPECT_EQ(default_first_rest(ladder(protein | saccharification)), 122);
    EXPECT_EQ(default_first_rest(ladder(protein | saccharification, MashKind::single_step)), 152);
    EXPECT_EQ(default_first_rest(ladder(saccharification)), 152);
    EXPECT_EQ(default_first_rest(ladder(mash_out)), 155);
}

MashStep step(StepHeat heat, std::int32_t start, std::int32_t stop, std::int32_t infuse, float ratio,
              float amount) {
    MashStep s;
    s.heat_type = heat;
    s.start_temperature = start;
    s.stop_temperature = stop;
    s.infuse_temperature = infuse;
    s.ratio = ratio;
    s.amount = amount;
    return s;
}

Settings mash_settings(Units units) {
    Settings settings;
    settings.volume_units = units;
    settings.heat_capacity = 0.4F;
    settings.grain_water_volume = 1.32F;
    return settings;
}

TEST(ComplexSchedule, PassOverStepsOfEveryKind) {
    using enum StepHeat;
    const struct {
        const char* name;
        MashStep step;
        float amount, ratio, metric_ratio;
    } rows[] = {
        {"dough-in", step(infuse, 122, 120, 0, 9, 9), 10, 1, 2.08625436F},
        {"infusion from the stop of the dough-in", step(infuse, 140, 140, 212, 0, 0), 3.33333325F,
         1.33333325F, 2.78167248F},
        {"direct heat changes nothing", step(direct, 150, 148, 0, 7, 7), 7, 7, 7},
        {"infusion from where the heat ended", step(infuse, 158, 158, 210, 0, 0), 2.94871783F, 1.62820506F,
         3.39685011F},
        {"decoction adds no water", step(decoction, 168, 167, 212, 0.65F, 0), 3.88331938F, 0.65F, 0.65F},
        {"decoction to no higher rest", step(decoction, 160, 160, 212, 1, 5), 0, 1, 1},
    };
    for (const auto units : {Units::american, Units::metric}) {
        ComplexMash mash;
        mash.grain_temperature = 60;
        for (const auto& row : rows) mash.steps[static_cast<std::size_t>(mash.step_count++)] = row.step;
        const auto water = RecalculateSteps(mash, 10, 10, mash_settings(units));
        EXPECT_FLOAT_EQ(water.quarts, 16.2820511F);
        EXPECT_FLOAT_EQ(water.gallons, 4.87051296F);
        EXPECT_EQ(mash.steps[0].infuse_temperature, 134);
        for (std::size_t i = 0; i < std::size(rows); ++i) {
            const auto& row = rows[i];
            EXPECT_FLOAT_EQ(mash.steps[i].amount, row.amount) << row.name;
            EXPECT_FLOAT_EQ(mash.steps[i].ratio, units == Units::american ? row.ratio : row.metric_ratio)
                << row.name;
        }
        EXPECT_FLOAT_EQ(infused_water(mash), 16.2820511F);
        EXPECT_FLOAT_EQ(infused_water_before(mash, 3), 13.3333333F);
        EXPECT_EQ(infused_water_before(mash, 0), 0.0F);
    }
}

TEST(ComplexSchedule, DamagedCountsStayWithinTheSlots) {
    for (const std::int32_t count : {-1, 51, std::numeric_limits<std::int32_t>::max()}) {
        ComplexMash mash;
        mash.step_count = count;
        mash.steps[49].amount = 3;
        const auto water = RecalculateSteps(mash, 10, 10, mash_settings(Units::american));
        EXPECT_EQ(water.quarts, 10.0F) << count;
        EXPECT_EQ(mash.steps[0].amount, count < 0 ? 0.0F : 10.0F) << count;
        EXPECT_EQ(mash.steps[49].amount, count < 0 ? 3.0F : 0.0F) << count;
        EXPECT_EQ(mash.step_count, count) << "kept for the file";
    }
    ComplexMash empty;
    empty.step_count = 1;
    empty.steps[0].start_temperature = 150;
    const auto water = RecalculateSteps(empty, 0, 0, mash_settings(Units::american));
    EXPECT_EQ(water.gallons, 0.0F);
    EXPECT_EQ(empty.steps[0].infuse_temperature, 150) << "neither grain nor water";
    EXPECT_EQ(empty.steps[0].ratio, 0.0F);
}

TEST(MashRatio, BothDirectionsAndTheDefault) {
    EXPECT_FLOAT_EQ(quarts_from_ratio(1.5F, 10, Units::american), 15);
    EXPECT_FLOAT_EQ(quarts_from_ratio(1.5F, 10, Units::metric), 7.18987179F);
    EXPECT_FLOAT_EQ(quarts_from_default_ratio(1.25F, 10, Units::american), 12.5F);
    EXPECT_FLOAT_EQ(quarts_from_default_ratio(1.25F, 10, Units::metric), 12.5151703F);
    EXPECT_EQ(shown_ratio(10, 0, Units::metric), 0.0F);
}

} // namespace
} // namespace wortlex
