#include "calculators/refractometer.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

TEST(Refractometer, NetZeissOfBrix) {
    const struct {
        const char* name;
        float brix, water_brix, expected;
    } rows[] = {
        {"water", 0, 0, 0},
        {"too little to tell", 0.0019F, 0, 0},
        {"a wort", 8, 0, 30.9995918F},
        {"a strong one", 12, 0, 47.5915222F},
        {"an instrument that shows water at 0.2", 8, 0.2F, 30.1893692F},
        {"and reads below its own water", 0.1F, 0.2F, 0},
    };
    for (const auto& row : rows) {
        Settings settings;
        settings.water_brix = row.water_brix;
        EXPECT_NEAR(net_zeiss_from_brix(row.brix, settings), row.expected, 1e-5) << row.name;
    }
}

void expect_figures(const AlcoholFigures& got, const AlcoholFigures& expected, const char* name) {
    EXPECT_FLOAT_EQ(got.by_weight, expected.by_weight) << name;
    EXPECT_FLOAT_EQ(got.by_volume, expected.by_volume) << name;
    EXPECT_FLOAT_EQ(got.real_extract, expected.real_extract) << name;
    EXPECT_FLOAT_EQ(got.original_extract, expected.original_extract) << name;
    EXPECT_FLOAT_EQ(got.net_zeiss, expected.net_zeiss) << name;
}

TEST(Refractometer, AlcoholOfAReading) {
    expect_figures(alcohol_from_reading(1.012F, 24.5F),
                   {3.58715987F, 4.58938789F, 4.69714546F, 11.6637888F, 24.5F}, "an ale");
    expect_figures(alcohol_from_reading(1.02F, 30), {2.84800529F, 3.67252254F, 6.38399744F, 11.9077158F, 30},
                   "a sweet one");
    expect_figures(alcohol_from_reading(1.05F, 5), {0, 0, 7.33049393F, 0, 5},
                   "too low: the extract alone stands");
}

TEST(Refractometer, ImpliedReadingIsTheStepBeforeTheTurn) {
    const Settings settings;
    expect_figures(implied_alcohol(12.387F, 3.067F, settings),
                   {3.9039402F, 4.99467421F, 4.83593559F, 12.387661F, 25.6771851F}, "an ale");
    expect_figures(implied_alcohol(12, 2.5F, settings),
                   {3.96937871F, 5.06720543F, 4.30414343F, 11.99891F, 23.6216526F}, "a dry one");
    expect_figures(implied_alcohol(5, 40, settings), {0, 0, 27.1153908F, 0, 30.9995918F},
                   "none fits: the reading at 8 Brix");
}

} // namespace
} // namespace wortlex
