#include "measures/rounding.h"

#include <gtest/gtest.h>

#include <limits>

namespace wortlex {
namespace {

constexpr float not_a_number = std::numeric_limits<float>::quiet_NaN();

TEST(Rounding, CutsToAnyNumberOfDecimalsAfterTheNudge) {
    const struct {
        const char* name;
        float x;
        int digits;
        float expected;
    } rows[] = {
        {"one: just below the nudge", 0.9879F, 1, 0.9F},
        {"one: the nudge carries over", 0.9881F, 1, 1.0F},
        {"two: ordinary rounding would carry", 1.9985F, 2, 1.99F},
        {"two: the nudge carries over", 1.9989F, 2, 2.0F},
        {"three: cut below a nudge short of the digit", 1.23479F, 3, 1.234F},
        {"three: the nudge carries over", 1.2349F, 3, 1.235F},
        {"four", 2.34567F, 4, 2.3456F},
        {"five: a gravity just below its digit", 1.0479999F, 5, 1.048F},
        {"six", 1.23456789F, 6, 1.234568F},
        {"seven is no known number of decimals", 3.1415927F, 7, 3.1415927F},
        {"nor is none", 3.1415927F, 0, 3.1415927F},
        {"negative numbers are cut toward zero", -1.26F, 1, -1.2F},
        {"and the nudge moves them up", -1.2F, 1, -1.1F},
        {"out of range is the smallest integer", 3e9F, 1, -214748364.8F},
        {"so is what is no number", not_a_number, 3, -2147483.648F},
    };
    for (const auto& row : rows) EXPECT_EQ(trunc_to_precision(row.x, row.digits), row.expected) << row.name;
}

TEST(Rounding, CutsToFiveDecimalsWithTheLargeNudge) {
    EXPECT_EQ(trunc_5(1.2399912F), 1.24) << "0.9 units of the last place";
    EXPECT_EQ(trunc_5(1.239990F), 1.23999);
    EXPECT_EQ(trunc_5(-0.00005F), -0.00004) << "toward zero";
    EXPECT_EQ(trunc_5(100000), -21474.83648) << "out of range";
}

TEST(Rounding, NudgesTwoDecimalsMoreFromOneOn) {
    const struct {
        const char* name;
        float x, expected;
    } rows[] = {
        {"small nudge below 1: short of it", 0.0090F, 0.0F},    {"small nudge below 1", 0.0092F, 0.01F},
        {"just below 1 the small nudge holds", 0.9982F, 0.99F}, {"just below 1 it reaches", 0.9992F, 1.0F},
        {"large nudge from 1: short of it", 1.0080F, 1.0F},     {"large nudge from 1", 1.0082F, 1.01F},
        {"the small one would not reach here", 2.4982F, 2.5F},
    };
    for (const auto& row : rows) EXPECT_EQ(two_decimals(row.x), row.expected) << row.name;
}

TEST(Rounding, TakesGravitiesForTheSameWithinAPoint) {
    EXPECT_TRUE(gravity_close(1.04F, 1.0409F));
    EXPECT_TRUE(gravity_close(1.0409F, 1.04F));
    EXPECT_FALSE(gravity_close(1.04F, 1.041F));
    EXPECT_FALSE(gravity_close(1.041F, 1.04F));
}

} // namespace
} // namespace wortlex
