#include "measures/potential.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

constexpr PotentialTraits grain{4, 78.5F, true};
constexpr PotentialTraits kettle_sugar{4, 78.5F, false};

Settings showing(PotentialDisplay display, YieldType type) {
    Settings settings;
    settings.potential_display = display;
    settings.yield_type = type;
    return settings;
}

TEST(Potential, ShowsAndReadsEverySetting) {
    using enum PotentialDisplay;
    const struct {
        const char* name;
        PotentialDisplay display;
        YieldType type;
        PotentialTraits traits;
        float sg, shown, back;
    } rows[] = {
        {"SG", sg, YieldType::coarse_as_is, grain, 1.037F, 1.037F, 1.037F},
        {"points", points, YieldType::coarse_as_is, grain, 1.037F, 37, 1.037F},
        {"HWE", hwe, YieldType::coarse_as_is, grain, 1.037F, 309.066F, 1.037F},
        {"Plato loses a unit on the way", plato, YieldType::coarse_as_is, grain, 1.037F, 9.25F, 1.03699F},
        {"yield as it is stored", percent_yield, YieldType::fine_dry_basis, grain, 1.037F, 80.0691147F,
         1.037F},
        {"yield with moisture", percent_yield, YieldType::fine_as_is, grain, 1.037F, 76.8663483F, 1.037F},
        {"coarse yield: what is above it counts twice on the way back", percent_yield,
         YieldType::coarse_dry_basis, grain, 1.037F, 78.5F, 1.03627F},
        {"coarse yield with moisture", percent_yield, YieldType::coarse_as_is, grain, 1.037F, 75.36F,
         1.03627F},
        {"no moisture in what is not mashed", percent_yield, YieldType::coarse_as_is, kettle_sugar, 1.037F,
         80.0691147F, 1.037F},
        {"Plato stops at sugar", plato, YieldType::fine_dry_basis, grain, 1.06F, 11.553F, 1.0462F},
        {"yield stops at sugar", percent_yield, YieldType::fine_dry_basis, grain, 1.06F, 100, 1.04621F},
        {"nothing below 0", points, YieldType::fine_dry_basis, grain, 0.99F, 0, 1},
    };
    for (const auto& row : rows) {
        const auto settings = showing(row.display, row.type);
        EXPECT_FLOAT_EQ(potential_to_shown(row.sg, row.traits, settings), row.shown) << row.name;
        EXPECT_EQ(potential_from_shown(row.shown, row.traits, settings), row.back) << row.name;
    }
}

TEST(Potential, ReadsNoMoreThanSugarAndNoLessThanNothing) {
    const auto read = [](PotentialDisplay display, float shown) {
        return potential_from_shown(shown, kettle_sugar, showing(display, YieldType::fine_dry_basis));
    };
    EXPECT_EQ(read(PotentialDisplay::plato, 20), 1.04621F);
    EXPECT_EQ(read(PotentialDisplay::percent_yield, 120), 1.04621F);
    EXPECT_EQ(read(PotentialDisplay::sg, -5), 0.0F);
}

TEST(Potential, PlainPairTakesYieldForSg) {
    EXPECT_EQ(potential_to_shown_plain(1.037F, PotentialDisplay::percent_yield), 1.037F);
    EXPECT_EQ(potential_from_shown_plain(1.037F, PotentialDisplay::percent_yield), 1.037F);
    EXPECT_FLOAT_EQ(potential_to_shown_plain(1.037F, PotentialDisplay::hwe), 309.066F);
    EXPECT_EQ(potential_from_shown_plain(9.25F, PotentialDisplay::plato), 1.03699F);
}

TEST(Extract, ShowsEverySetting) {
    const ExtractTotals totals{48, 9.5};
    const ExtractTotals water{0, 9.5};
    const struct {
        const char* name;
        ExtractDisplay display;
        Units weight;
        const ExtractTotals& totals;
        float line_sg, expected;
    } rows[] = {
        {"SG is not cut", ExtractDisplay::sg, Units::american, totals, 1.0123456F, 1.0123456F},
        {"points", ExtractDisplay::points, Units::american, totals, 1.0123456F, 12.345F},
        {"pounds", ExtractDisplay::weight, Units::american, totals, 1.0123456F, 2.345F},
        {"kilograms of the cut pounds", ExtractDisplay::weight, Units::metric, totals, 1.0123456F,
         1.06369197F},
        {"Plato by the share of gravity", ExtractDisplay::plato, Units::american, totals, 1.0123456F, 3.062F},
        {"Plato of the line alone in a recipe without gravity", ExtractDisplay::plato, Units::american, water,
         1.0123456F, 3.154F},
        {"percent of the total", ExtractDisplay::percent, Units::american, totals, 1.0123456F, 24.6842117F},
        {"nothing below 0", ExtractDisplay::points, Units::american, totals, 0.99F, 0},
    };
    for (const auto& row : rows) {
        Settings settings;
        settings.weight_units = row.weight;
        EXPECT_FLOAT_EQ(extract_to_shown(row.line_sg, 2.3456789F, row.totals, settings, row.display),
                        row.expected)
            << row.name;
        settings.extract_display = row.display;
        EXPECT_FLOAT_EQ(extract_to_shown(row.line_sg, 2.3456789F, row.totals, settings), row.expected)
            << row.name;
    }
}

} // namespace
} // namespace wortlex
