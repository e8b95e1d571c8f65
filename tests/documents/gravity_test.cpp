#include "documents/gravity.h"

#include "documents/brewing.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

constexpr auto method_1 = EfficiencyMode::method_1, method_2 = EfficiencyMode::method_2;
constexpr auto points = GravityBase::points, mass = GravityBase::mass;

Settings gravity_settings(EfficiencyMode mode, GravityBase base, YieldType type = YieldType::fine_dry_basis) {
    auto settings = brewing_settings();
    settings.efficiency_mode = mode;
    settings.gravity_base = base;
    settings.yield_type = type;
    return settings;
}

TEST(GravityKernel, MethodsBasesAndYieldTypes) {
    using enum YieldType;
    const struct {
        const char* name;
        EfficiencyMode mode;
        GravityBase base;
        YieldType type;
        float og, boil, wort;
        double extract, sucrose;
        std::array<float, 5> lines;
    } rows[] = {
        // clang-format off
        {"fine, dry", method_1, points, fine_dry_basis, 64.2999268F, 49.461483F, 53.583271F, 6.95736046,
         46.21, {44.3999252F, 10.8F, 4.6F, 4.49999571F, 0}},
        {"its other code is the same", EfficiencyMode::method_1_yield, points, fine_dry_basis, 64.2999268F,
         49.461483F, 53.583271F, 6.95736046, 46.21, {44.3999252F, 10.8F, 4.6F, 4.49999571F, 0}},
        {"moisture in the grain alone", method_1, points, fine_as_is, 62.3439293F, 47.9568672F, 51.9532738F,
         6.74571832, 46.21, {42.6239281F, 10.8F, 4.6F, 4.31999588F, 0}},
        {"coarse", method_1, points, coarse_dry_basis, 63.088726F, 48.529789F, 52.5739365F, 6.8263066, 46.21,
         {43.5298195F, 10.8F, 4.6F, 4.1589F, 0}},
        {"coarse and moist", method_1, points, coarse_as_is, 61.181179F, 47.0624466F, 50.984314F, 6.6199068,
         46.21, {41.7886276F, 10.8F, 4.6F, 3.9925437F, 0}},
        {"by mass", method_1, mass, fine_dry_basis, 64.1188049F, 49.398838F, 53.498806F, 6.95736046,
         46.0746408, {44.2698669F, 10.7683697F, 4.58652592F, 4.48681402F, 0}},
        {"by mass, moist", method_1, mass, fine_as_is, 62.178791F, 47.908844F, 51.8787498F, 6.74571832,
         46.0833324, {42.5070915F, 10.770401F, 4.58739138F, 4.30815411F, 0}},
        {"by mass, coarse", method_1, mass, coarse_dry_basis, 62.9188423F, 48.4787827F, 52.4887428F,
         6.8263066, 46.0799831, {43.4073448F, 10.769618F, 4.58705807F, 4.1471982F, 0}},
        {"by mass, coarse and moist", method_1, mass, coarse_as_is, 61.0287781F, 47.0188255F, 50.9187584F,
         6.6199068, 46.0886676, {41.6789055F, 10.7716475F, 4.58792257F, 3.98206067F, 0}},
        {"no potential", method_2, points, coarse_as_is, 77.7835007F, 59.8334656F, 64.8195877F, 8.41630657,
         46.21, {55.452F, 10.8F, 4.6F, 6.9315F, 0}},
        {"no potential, by mass", method_2, mass, fine_as_is, 77.4588013F, 59.6887474F, 64.6288986F,
         8.41630657, 46.0150014, {55.2180023F, 10.7544308F, 4.58058929F, 6.90225029F, 0}},
        // clang-format on
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const auto settings = gravity_settings(row.mode, row.base, row.type);
        auto document = five_malts();
        EXPECT_FLOAT_EQ(compute_wort_points(document, settings), row.wort);
        EXPECT_EQ(document.malts[0].points, 99.0F) << "the wort's points leave the lines alone";
        RecipeFigures figures;
        EXPECT_FLOAT_EQ(compute_og(document, figures, settings), row.og);
        EXPECT_FLOAT_EQ(figures.tinseth_points, row.boil);
        EXPECT_NEAR(figures.total_extract_pounds, row.extract, 2e-6);
        EXPECT_NEAR(figures.recipe_sucrose, row.sucrose, 2e-6);
        EXPECT_EQ(figures.total_grain, 13.0F);
        for (std::size_t i = 0; i < row.lines.size(); ++i) {
            EXPECT_NEAR(document.malts[i].points, row.lines[i], 8e-6) << "line " << i;
            EXPECT_NEAR(figures.lines[i].sg, 1 + double{row.lines[i]} / 1000, 2e-8) << "line " << i;
        }
    }
}

TEST(GravityKernel, AtItsLimits) {
    RecipeFigures figures;
    figures.tinseth_points = 7;
    auto document = empty_recipe();
    EXPECT_EQ(compute_og(document, figures, gravity_settings(method_1, points)), 0.0F);
    EXPECT_EQ(figures.tinseth_points, 7.0F) << "without malts nothing is touched";

    document.malts = {malt(MaltType::sugar, 1.046F, 500)};
    EXPECT_EQ(compute_og(document, figures, gravity_settings(method_1, mass)), -1.0F)
        << "more than any wort holds";

    document.malts = {malt(MaltType::grain, 1.0F, 0)};
    EXPECT_EQ(compute_og(document, figures, gravity_settings(method_1, mass)), 0.0F) << "no extract at all";
    EXPECT_NEAR(figures.recipe_sucrose, 46.726, 1e-5);
    EXPECT_NEAR(variable_sucrose_value(5.4, 5), 46.1474458, 1e-6);
}

TEST(PotentialPoints, OfAllMashedAndOtherLines) {
    using enum YieldType;
    const struct {
        const char* name;
        EfficiencyMode mode;
        GravityBase base;
        YieldType type;
        float all, mashed, other;
    } rows[] = {
        {"method 1", method_1, points, fine_dry_basis, 80.5998993F, 65.1998901F, 15.4000053F},
        {"coarse and moist", method_1, points, coarse_as_is, 76.4415665F, 61.0415611F, 15.4000053F},
        {"by mass", method_1, mass, fine_dry_basis, 80.2387619F, 65.0088196F, 15.4587631F},
        {"method 2: below 1.0 counts against the others alone", method_2, points, fine_dry_basis, 98.578F,
         83.178F, 7.4F},
        {"method 2 by mass", method_2, mass, fine_dry_basis, 98.0188217F, 82.7987823F, 7.44885206F},
    };
    for (const auto& row : rows) {
        const auto settings = gravity_settings(row.mode, row.base, row.type);
        EXPECT_FLOAT_EQ(potential_points(five_malts(), MaltShare::all, settings), row.all) << row.name;
        EXPECT_FLOAT_EQ(potential_points(five_malts(), MaltShare::mashed, settings), row.mashed) << row.name;
        EXPECT_FLOAT_EQ(potential_points(five_malts(), MaltShare::other, settings), row.other) << row.name;
    }
    auto thin = empty_recipe();
    thin.malts = {malt(MaltType::other, 0.98F, 2)};
    EXPECT_EQ(potential_points(thin, MaltShare::other, gravity_settings(method_2, points)), 0.0F)
        << "not negative";
}

TEST(HoldGravity, ChangesMashedWeightsAlone) {
    for (const auto mode : {method_1, method_2}) {
        auto document = five_malts();
        document.malts.push_back(malt(MaltType::grain, 0.98F, 4));
        document.og_points = 48;
        document.efficiency = 0.6F;
        RecipeFigures figures;
        float locked = 0.75F;
        hold_gravity(document, figures, locked, gravity_settings(mode, points));
        const float thin = mode == method_1 ? 4.0F : 5.0F; // a potential below 1.0 has no yield to hold
        const std::array<float, 6> expected = {10, 1.5F, 0.5F, 1.25F, 2, thin};
        for (std::size_t i = 0; i < expected.size(); ++i)
            EXPECT_FLOAT_EQ(document.malts[i].amount, expected[i]);
        EXPECT_EQ(document.og_points, 48.0F);
        EXPECT_EQ(document.malts[0].points, 0.0F);
        EXPECT_EQ(document.malts[1].points, 99.0F);
        EXPECT_EQ(locked, 0.6F);
        EXPECT_FLOAT_EQ(figures.total_grain, 15.25F + thin);
    }
}

TEST(MashableGrain, IsGrainInARecipeThatMashes) {
    auto document = empty_recipe();
    document.malts = {malt(MaltType::other, 1.03F, 1, true)};
    EXPECT_FALSE(has_mashable_grain(document));
    document.malts.push_back(malt(MaltType::grain, 1.037F, 0));
    EXPECT_FALSE(has_mashable_grain(document)) << "none of it";
    document.malts[1].amount = 1;
    EXPECT_TRUE(has_mashable_grain(document));
    document.recipe_kind = RecipeKind::extract;
    EXPECT_FALSE(has_mashable_grain(document));
}

} // namespace
} // namespace wortlex
