#include "measures/gravity.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

struct Pair {
    const char* name;
    float x, expected;
};

TEST(Gravity, SgToPlatoHasTwoBranches) {
    const Pair rows[] = {
        {"water", 1, 0},
        {"lighter than water", 0.99F, 0},
        {"a small beer", 1.01F, 2.56F},
        {"a usual wort", 1.048F, 11.912F},
        {"the joint", 1.08F, 19.331F},
        {"just above it", 1.0801F, 19.353F},
        {"strong wort by the second fit; the first gives 28.062", 1.12F, 28.056F},
        {"the top of the scale", 2, 171.647F},
    };
    for (const auto& row : rows) EXPECT_EQ(sg_to_plato(row.x), row.expected) << row.name;
}

TEST(Gravity, PlatoToSgHasTwoBranches) {
    const Pair rows[] = {
        {"0 comes back a little above water, as its formula has it", 0, 1.00002F},
        {"never below water", -5, 1},
        {"a usual wort", 12, 1.04837F},
        {"the last of the first branch", 19.331F, 1.08F},
        {"the cubic", 20, 1.08298F},
        {"the cubic, stronger", 40, 1.17881F},
        {"the cubic, past any wort", 150, 1.88403F},
    };
    for (const auto& row : rows) EXPECT_EQ(plato_to_sg(row.x), row.expected) << row.name;
}

TEST(Gravity, YieldsAreHeldBetweenNothingAndAllSugar) {
    const Pair rows[] = {
        // clang-format off
        {"below water", 0.99F, 0}, {"water", 1, 0}, {"a malt", 1.036F, 77.9052505F},
        {"above sugar", 1.0463F, 100},
        // clang-format on
    };
    for (const auto& row : rows) EXPECT_FLOAT_EQ(yield_from_sg(row.x), row.expected) << row.name;
    EXPECT_FLOAT_EQ(sg_from_yield(80), 1.036968F);
    EXPECT_FLOAT_EQ(sg_from_yield(120), 1.04621F) << "capped";
    EXPECT_FLOAT_EQ(points_from_yield(80), 36.968F);
    EXPECT_FLOAT_EQ(points_from_yield(120), 46.21F) << "capped";
    EXPECT_FLOAT_EQ(as_is_yield(80, 4), 76.8F);
    EXPECT_EQ(as_is_yield(120, 4), 100.0F) << "capped";
    EXPECT_FLOAT_EQ(dry_yield(76.8F, 4), 80);
    EXPECT_EQ(dry_yield(99, 4), 100.0F) << "capped";
    EXPECT_FLOAT_EQ(hwe_from_points(36.968F), 308.8F);
    EXPECT_EQ(hwe_from_points(-1), 0.0F);
}

TEST(Gravity, ExtractPerGallonAndBack) {
    EXPECT_FLOAT_EQ(extract_per_gallon(1.05F), 1.0834533F);
    EXPECT_FLOAT_EQ(extract_per_gallon(1.1F), 2.17688036F);
    const Pair rows[] = {
        {"no extract is no gravity", 0, 0},   {"a small beer", 0.4F, 18.5387726F},
        {"a usual wort", 1.08F, 49.8488541F}, {"past the joint of the scales", 4, 182.048859F},
        {"near the top", 20, 788.488831F},    {"more than any wort holds", 40, -1},
        {"less than none", -1, -1},
    };
    for (const auto& row : rows) EXPECT_FLOAT_EQ(points_from_extract(row.x), row.expected) << row.name;
}

TEST(Gravity, AlcoholAndAttenuation) {
    const struct {
        const char* name;
        float og, fg, by_weight, by_volume, apparent, real;
    } rows[] = {
        {"an ale", 1.05F, 1.012F, 3.90910721F, 5.00128508F, 75.2321014F, 62.6048965F},
        {"a barley wine, whose OG is on the upper branch", 1.09F, 1.02F, 7.22746468F, 9.31986618F,
         76.4343033F, 64.3138504F},
        {"water has no extract to divide by", 1, 1, 0, 0, 0, 0},
        {"a gravity that rose gives no negative alcohol", 1.01F, 1.05F, 0, 0, 0, 0},
        {"no OG", 0, 1.01F, 0, 0, 0, 0},
        {"no FG", 1.05F, 0, 0, 0, 0, 0},
    };
    for (const auto& row : rows) {
        const float by_weight = alcohol_by_weight(row.og, row.fg);
        EXPECT_FLOAT_EQ(by_weight, row.by_weight) << row.name;
        EXPECT_FLOAT_EQ(alcohol_by_volume(by_weight, row.fg), row.by_volume) << row.name;
        EXPECT_FLOAT_EQ(apparent_attenuation(row.og, row.fg), row.apparent) << row.name;
        EXPECT_FLOAT_EQ(real_attenuation(row.og, row.fg), row.real) << row.name;
    }
    EXPECT_EQ(alcohol_by_volume(4, 0), 0.0F);
    EXPECT_FLOAT_EQ(real_attenuation_re(1.05F, 4.5F), 65.1854935F);
    EXPECT_EQ(real_attenuation_re(0, 4.5F), 0.0F);
    EXPECT_EQ(real_attenuation_re(1.05F, 13), 0.0F) << "more real extract than the wort had";
    EXPECT_FLOAT_EQ(potential_alcohol(1.05F), 6.56897974F);
}

} // namespace
} // namespace wortlex
