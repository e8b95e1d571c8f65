#include "brewing/mash_recalculation.h"
#include "brewing/mash_water.h"
#include "brewing/water_balance.h"
#include "documents/brewing.h"

namespace wortlex {
namespace {

TEST(MashWater, OfOneStep) {
    using enum Units;
    // clang-format off
    expect_floats(TotalMashVolume, {{10, 10, 1.32F, 3.3F}, {0, 10, 1.32F, 0}, {10, 0, 1.32F, 0},
        {10, 0.5F, 0.5F, 0}});
    // Cut before the tun and after.
    expect_exactly(StrikeTemperature, {{150, 60, 1, 0, 168}, {150, 60, 1, 0.5F, 184}, {150, 60, 1.3F, 0, 163},
        {150, 60, 1.3F, 0.1F, 166}, {150, 60, 0, 0.5F, 150}, {50, 60, 1, 0, 48}});
    // Water no warmer than the rest gives nothing, nor does a rest below the last.
    expect_floats(InfusionAmount, {{150, 122, 210, 10, 10, 5.6F}, {150, 122, 150, 10, 10, 0},
        {150, 122, 140, 10, 10, 0}, {122, 150, 210, 10, 10, 0}});
    expect_floats(quarts_from_ratio, {{1.5F, 10, american, 15}, {1.5F, 10, metric, 7.18987179F}});
    expect_floats(quarts_from_default_ratio, {{1.25F, 10, american, 12.5F}, {1.25F, 10, metric, 12.5151703F}});
    expect_floats(shown_ratio, {{10, 0, metric, 0}});
    // As thick as the mash or thicker, of grain alone, and returned no warmer than the mash.
    expect_floats(DecoctionVolume, {
        {150, 168, {10, 2.5F, 0.4F}, 210, 0, 3.96724057F}, {150, 168, {10, 2.5F, 0.4F}, 210, 0.65F, 4.11971521F},
        {150, 168, {0, 2.5F, 0.4F}, 210, 0, 4.92327261F}, {150, 168, {10, 2.5F, 0.4F}, 150, 0, 0}});
    // To the last bit: 2.20402265 without the narrowing of what the pulled mash gives off.
    expect_exactly(DecoctionVolume, {{150, 160, {10, 2.5F, 0.4F}, 210, 0, 2.20402241F}});
    // clang-format on
}

enum RestBits { acid = 1, protein = 2, intermediate = 4, saccharification = 8, mash_out = 16, all = 31 };
constexpr auto multi = MashKind::multi_step, single = MashKind::single_step;

SimpleMash ladder(int present, MashKind kind) {
    const auto rest = [present](RestBits bit, std::int32_t temperature) {
        return Rest{temperature, (present & bit) != 0 ? 20 : 0};
    };
    // clang-format off
    return {.mash_kind = kind, .dough_in = {}, .acid = rest(acid, 104), .protein = rest(protein, 122),
            .intermediate = rest(intermediate, 140), .saccharification = rest(saccharification, 152),
            .mash_out = rest(mash_out, 168), .sparge = {}, .dough_in_water = 12};
    // clang-format on
}

TEST(SimpleSchedule, EachInfusionFromTheRestBefore) {
    const auto infusions = +[](MashKind kind, int present, int to_saccharification) {
        // clang-format off
        InfusionExtras to{.protein = {210, 1.5F}, .intermediate = {210, 2.5F},
                          .saccharification = {to_saccharification, 3.5F}, .mash_out = {210, 4.5F}};
        // clang-format on
        const float quarts = RecalculateSimpleInfusions(ladder(present, kind), to, 10, 10);
        return std::array{to.protein.amount, to.intermediate.amount, to.saccharification.amount,
                          to.mash_out.amount, quarts};
    };
    // clang-format off
    expect_floats(infusions, {
        {multi, all, 210, {2.4545455F, 3.71688318F, 3.75960588F, 8.35468006F, 28.2857151F}},
        {multi, all & ~acid, 210, {0, 3.08571434F, 3.1211822F, 6.93596029F, 23.1428566F}},
        // the intermediate rest last: the dough-in twice
        {multi, acid | protein | intermediate, 210, {2.4545455F, 3.71688318F, 0, 0, 26.1714287F}},
        {multi, all & ~mash_out, 210, {2.4545455F, 3.71688318F, 3.75960588F, 0, 19.9310346F}},
        {multi, acid | intermediate, 210, {0, 6.17142868F, 0, 0, 26.1714287F}},
        {multi, all & ~intermediate, 210, {2.4545455F, 0, 7.47648907F, 8.35468006F, 28.2857151F}},
        {multi, acid | mash_out, 210, {0, 0, 0, 18.2857151F, 28.2857151F}}, {multi, saccharification, 210, {0, 0, 0, 0, 10}},
        {multi, all, 0, {2.4545455F, 3.71688318F, 0, 6.92244911F, 23.0938778F}},
        // single step infuses the mash-out and keeps the others
        {single, all, 210, {1.5F, 2.5F, 3.5F, 4.57142878F, 14.5714283F}},
        {single, all & ~saccharification, 210, {1.5F, 2.5F, 3.5F, 0, 10}}});
    expect_exactly(default_first_rest, {{ladder(protein | saccharification, multi), 122},
        {ladder(protein | saccharification, single), 152}, {ladder(mash_out, multi), 155}});
    // clang-format on
}

TEST(ComplexSchedule, PassOverStepsOfEveryKind) {
    using enum StepHeat;
    // clang-format off
    const struct {
        StepHeat heat; std::int32_t start, stop, water; float ratio_before, amount_before, amount, ratio, metric_ratio;
    } rows[] = {
        {infuse, 122, 120, 0, 9, 9, 10, 1, 2.08625436F},
        {infuse, 140, 140, 212, 0, 0, 3.33333325F, 1.33333325F, 2.78167248F},
        {direct, 150, 148, 0, 7, 7, 7, 7, 7},
        {infuse, 158, 158, 210, 0, 0, 2.94871783F, 1.62820506F, 3.39685011F},
        // adds no water, nor anything to no higher rest
        {decoction, 168, 167, 212, 0.65F, 0, 3.88331938F, 0.65F, 0.65F},
        {decoction, 160, 160, 212, 1, 5, 0, 1, 1},
    };
    // clang-format on
    for (const auto units : {Units::american, Units::metric}) {
        auto settings = brewing_settings();
        settings.volume_units = units;
        ComplexMash mash;
        mash.grain_temperature = 60;
        for (const auto& row : rows) {
            // clang-format off
            mash.steps[static_cast<std::size_t>(mash.step_count++)] = {
                .name = {}, .heat_type = row.heat, .start_temperature = row.start, .stop_temperature = row.stop,
                .infuse_temperature = row.water, .ratio = row.ratio_before, .amount = row.amount_before};
            // clang-format on
        }
        expect_figures(RecalculateSteps(mash, 10, 10, settings), {16.2820511F, 4.87051296F},
                       "quarts, gallons");
        EXPECT_EQ(mash.steps[0].infuse_temperature, 134);
        for (std::size_t i = 0; i < std::size(rows); ++i) {
            const float ratio = units == Units::american ? rows[i].ratio : rows[i].metric_ratio;
            expect_figures(std::array{mash.steps[i].amount, mash.steps[i].ratio}, {rows[i].amount, ratio}, i);
        }
        EXPECT_FLOAT_EQ(infused_water(mash), 16.2820511F);
        EXPECT_FLOAT_EQ(infused_water_before(mash, 3), 13.3333333F);
    }
}

TEST(WaterBalance, FromWhatIsPutInToTheFermenter) {
    auto settings = brewing_settings();
    auto needs = usual_water, extract = usual_water, losing = usual_water;
    expect_figures(BalanceWater(needs, true, settings), {8, 1, 5.25F, 4.725F, 4.725F, 4.536F}, "by hand");
    EXPECT_FLOAT_EQ(needs.total_into_mash, 4.5F);
    EXPECT_FLOAT_EQ(needs.grain_absorption, 2);
    extract.top_up = 4;
    expect_figures(BalanceWater(extract, false, settings), {4, 0, 4, 3.6F, 3.6F, 3.456F}, "the top-up alone");
    settings.evaporation_by_volume = 1;
    losing.boil_minutes = 90;
    losing.evaporation_rate = 6;
    add_losses(losing);
    expect_figures(BalanceWater(losing, true, settings), {8, 1, 5.25F, -3.75F, -4.75F, -4.56F}, "boils away");
}

TEST(WaterNeeds, AreSeededFromTheScheduleInForce) {
    using enum SimpleHeat;
    const auto seeded = +[](int present, MashKind kind, SimpleHeat heat, bool is_complex, float grain) {
        ComplexMash complex;
        complex.step_count = 3;
        for (const std::size_t i : {0U, 1U, 2U}) complex.steps[i].amount = std::array{14.0F, 8.0F, 100.0F}[i];
        complex.steps[2].heat_type = StepHeat::decoction;
        // clang-format off
        const InfusionExtras to{.heat_type = heat, .protein = {210, 1}, .intermediate = {210, 50},
                                .saccharification = {210, 2}, .mash_out = {210, 4}};
        // clang-format on
        WaterNeeds needs{.quarts_per_pound = 7};
        seed_water_needs(needs, {grain, ladder(present, kind), to, complex, is_complex}, 75);
        return std::array{needs.mash_water, needs.quarts_per_pound, needs.grain, needs.boil_minutes};
    };
    // clang-format off
    expect_floats(seeded, {
        // the dough-in alone, or with the infusions of the rests there are
        {all & ~intermediate, multi, direct, false, 10, {3, 1.2F, 10, 75}},
        {all & ~intermediate, multi, infusion, false, 10, {4.75F, 1.9F, 10, 75}},
        {saccharification | mash_out, multi, infusion, false, 10, {4.5F, 1.8F, 10, 75}},
        // single step: of the mash-out
        {all & ~intermediate, single, infusion, false, 10, {4, 1.6F, 10, 75}},
        // infused steps without the decoction; the ratio stays without grain
        {all, multi, infusion, true, 10, {5.5F, 2.2F, 10, 75}}, {all, multi, direct, false, 0, {3, 7, 0, 75}}});
    // clang-format on
}

} // namespace
} // namespace wortlex
