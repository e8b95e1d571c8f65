#include "brewing/calendar.h"
#include "brewing/carbonation.h"
#include "brewing/dilution.h"
#include "brewing/evaporation.h"
#include "brewing/hydrometer.h"
#include "brewing/refractometer.h"
#include "brewing/unit_families.h"
#include "measures/gravity.h"
#include "measures/rounding.h"
#include "support/worked_figures.h"

#include <cmath>
#include <vector>

namespace wortlex {
namespace {

Settings calibrated(float brix, float zeiss, float ri) {
    Settings settings;
    settings.water_brix = brix;
    settings.water_zeiss = zeiss;
    settings.water_ri = ri;
    settings.brix_correction = 1.04F;
    return settings;
}

TEST(Hydrometer, ReadsTooLowInWarmWort) {
    const float at_60 = hydrometer_error(60);
    expect_floats(corrected_gravity, {{1.05F, 100, at_60, 1.05586684F}, {1.05F, 212, at_60, 1.09085548F}});
    expect_exactly(corrected_gravity, {{1.05F, 60, at_60, 1.05F}, {1.012F, 60, at_60, 1.012F}});
}

TEST(Refractometer, ItsScalesFollowTheOneThatWasRead) {
    const auto pure = calibrated(0, 14.5F, 1.33299F), offset = calibrated(0.2F, 15, 1.3331F);
    // clang-format off
    expect_floats(reading_of_brix, {
        {13, pure, {13, 66.3568115F, 1.35256207F}}, {13, offset, {13, 66.0000458F, 1.35235679F}},
        {0.001F, pure, {0.001F, 14.5F, 1.33299F}}});
    expect_floats(reading_of_zeiss, {
        {50, pure, {9.1019125F, 50, 1.3465004F}}, {50, offset, {9.18006802F, 50, 1.34642351F}}});
    expect_floats(reading_of_ri, {
        {1.35F, pure, {11.3649797F, 59.4125633F, 1.35F}}, {1.35F, offset, {11.494462F, 59.615681F, 1.35F}},
        {1.33F, offset, {0.2F, 15, 1.33F}}});
    // clang-format on
    EXPECT_GT(reading_of_ri(1.333295F, pure).brix, 0.2F);
    EXPECT_EQ(recalibrated_brix(1.333295F, pure), 0) << "its water begins at 1.333299";
    EXPECT_TRUE(std::isnan(reading_of_zeiss(0, calibrated(0, 1000, 1.33299F)).brix));
    EXPECT_EQ(plato_from_brix(13, pure), 12.5F);
    EXPECT_FLOAT_EQ(brix_from_plato(12.5F, offset), 13.2F);
    EXPECT_EQ(plato_from_brix(13, Settings()), 0) << "a factor of 0";
}

TEST(Refractometer, FollowsAFermentationFromItsOriginalGravity) {
    const auto pure = calibrated(0, 14.5F, 1.33299F);
    expect_floats(current_gravity, {{12.5F, 30, 1.01849854F}, {12.387F, 30.9995918F, 1.02035475F}});
    const float found = implied_fermenting_reading(12.387F, 3.067F, pure);
    EXPECT_NEAR(found, 6.6787F, 0.0001F);
    EXPECT_NEAR(sg_to_plato(current_gravity(12.387F, net_zeiss_from_brix(found, pure))), 3.067, 0.005);
    EXPECT_EQ(implied_fermenting_reading(5, 300, pure), 8) << "none fits";
    EXPECT_NEAR(implied_reading(0.91F, 0, pure), 0, 0.1) << "as good as water";
}

TEST(Dilution, GoesByTheMassOfExtract) {
    expect_floats(
        diluted_gravity,
        {{1.05F, 5, 1, 1.04171F}, {1.05F, 5, 0, 1.05F}, {1.05F, 5, -1, 1.06241F}, {1.05F, 0, 0, 1.05F}});
    expect_floats(blended_gravity, {{{5, 1.05F}, {1, 1}, 1.04171F},
                                    {{3, 1.06F}, {2, 1.04F}, 1.05201F},
                                    {{0, 1.05F}, {0, 1.05F}, plato_to_sg(0)}});
}

TEST(Evaporation, IsByPercentOrByVolume) {
    expect_floats(evaporation_rate, {{5, 4, 60, {20, 1}},
                                     {6, 5.5F, 1, {500, 30}},
                                     {8, 6, 90, {16.6666667F, 1.33333337F}},
                                     {4, 5, 60, {0, 0}}});
    EXPECT_TRUE(std::isnan(evaporation_rate(0, 0, 60).percent_per_hour));
    EXPECT_FLOAT_EQ(evaporated_by_percent(6, 10, 90), 0.9F);
    EXPECT_FLOAT_EQ(evaporated_by_volume(1.5F, 40), 1);
}

TEST(Carbonation, SugarAndPressure) {
    EXPECT_NEAR(residual_carbonation(68), 0.861487, 1e-6);
    EXPECT_NEAR(priming_grams(5, 68, 2.5F), 124.486, 1e-3);
    EXPECT_LT(priming_grams(5, 40, 1), 0) << "it holds 1.46 volumes";
    EXPECT_NEAR(primed_level(5, 68, 124.47F), 2.499786, 1e-5);
    EXPECT_EQ(primed_level(0, 68, 100), 0);
    EXPECT_NEAR(carbonation_pressure(42, 2.5F), 13.31303, 1e-4);
}

// The whole family from a value of one of its units, by name.
std::vector<float> family_of(UnitFamily family, std::string_view name, float value) {
    std::vector<float> values(family.size());
    const auto named = [&](const FamilyUnit& unit) { return unit.name == name; };
    const auto given = std::find_if(family.begin(), family.end(), named) - family.begin();
    values.at(static_cast<std::size_t>(given)) = value;
    follow_unit(family, values, static_cast<std::size_t>(given));
    return values;
}

TEST(UnitFamilies, FollowTheGivenUnit) {
    struct Row {
        UnitFamily family;
        std::string_view unit;
        float value;
        std::vector<float> expected;
    };
    const auto us = us_fluid_units(), imperial = imperial_fluid_units();
    const Row rows[] = {
        {us, "Gallons", 1, {128, 16, 8, 4, 1, 0.0322580645F, 3785.3F, 3.7853F, 0.037853F}},
        {us,
         "Liter",
         1,
         {33.8148F, 4.22685F, 2.113425F, 1.0567125F, 0.264178125F, 0.00852187F, 999.9934F, 1, 0.009999935F}},
        {us,
         "Hectoliter",
         1,
         {3381.504F, 422.688F, 211.344F, 105.672F, 26.418F, 0.852193548F, 100000.055F, 100.000055F, 1}},
        {imperial, "Gallon", 1, {160, 8, 1, 153.6F, 1.201F, 1.0F / 36, 4546, 4.546F, 0.04546F}},
        {imperial,
         "Liter",
         1,
         {35.1988737F, 1.75994368F, 0.21999296F, 33.7909187F, 0.264211545F, 0.00611091556F, 1000.088F, 1,
          0.01000088F}},
        {imperial, "Barrels", 0.5F, {2880, 144, 18, 2764.8F, 21.618F, 0.5F, 81828, 81.828F, 0.81828F}},
        {weight_units(), "Pounds", 2, {32, 2, 0.9072F, 907.2F, 14000}},
        {weight_units(), "Kilogram", 1, {35.2733686F, 2.20458554F, 1, 1000, 15432.0988F}},
        {temperature_units(), "Fahrenheit", 212, {212, 100, 373.15F, 80, 671.67F}},
        {temperature_units(), "Kelvin", 273.15F, {32, 0, 273.15F, 0, 491.67F}},
        {temperature_units(), "Reaumur", 16, {68, 20, 293.15F, 16, 527.67F}},
        {gravity_units(), "SG", 1.05F, {1.05F, 12.387F}},
        {pressure_units(), "kPa", 100, {14.5036839F, 100}},
    };
    for (const auto& row : rows) {
        const auto got = family_of(row.family, row.unit, row.value);
        ASSERT_EQ(got.size(), row.expected.size());
        for (std::size_t i = 0; i < got.size(); ++i)
            EXPECT_NEAR(got[i], row.expected[i], 2e-6 * std::abs(row.expected[i]) + 1e-4)
                << row.unit << " as " << row.family[i].name;
    }
    EXPECT_EQ(two_decimals(family_of(us, "Gallons", 1)[7]), 3.78F);
}

TEST(Calendar, CountsAndNamesDaysOverSummerTimeAndLeapYears) {
    expect_exactly(days_between, {{{27, 3, 2027}, {29, 3, 2027}, 2},
                                  {{28, 2, 2024}, {1, 3, 2024}, 2},
                                  {{1, 1, 2027}, {31, 12, 2026}, -1},
                                  {{1, 1, 1970}, {1, 1, 2070}, 36525}});
    expect_exactly(moved_on, {{{25, 1, 2026}, 10, {4, 2, 2026}},
                              {{1, 1, 2026}, 70, {40, 2, 2026}},
                              {{31, 12, 2026}, 1, {1, 1, 2027}},
                              {{28, 2, 2026}, 1, {29, 2, 2026}},
                              {{30, 4, 2026}, 0, {30, 4, 2026}}});
    expect_exactly(existing_day, {{{31, 2, 2025}, {28, 2, 2025}},
                                  {{30, 2, 2028}, {29, 2, 2028}},
                                  {{0, 0, 0}, {1, 1, 1}},
                                  {{32, 13, 32767}, {31, 12, 9999}},
                                  {{5, 3, 2001}, {5, 3, 2001}}});
    expect_exactly(next_day, {{{31, 12, 2026}, {1, 1, 2027}}, {{28, 2, 2027}, {1, 3, 2027}}});
    EXPECT_EQ(short_date({5, 3, 2001}, DateFormat::month_day_year), "03-05-2001");
    EXPECT_EQ(short_date({5, 3, 2001}, DateFormat::year_month_day), "2001-03-05");
    EXPECT_EQ(short_date({5, 3, 2001}, DateFormat::day_name_year), "05-Mar-2001");
    EXPECT_EQ(long_date({5, 3, 2001}), "Monday March 05, 2001");
}

} // namespace
} // namespace wortlex
