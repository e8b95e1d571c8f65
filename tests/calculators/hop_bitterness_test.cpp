#include "calculators/hop_bitterness.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

// The columns of the tables below, in this order.
constexpr std::array formulae = {HopFormulaCode::Rager, HopFormulaCode::Garetz, HopFormulaCode::Tinseth,
                                 HopFormulaCode::Generic};
using FourFigures = std::array<float, formulae.size()>;
constexpr FourFigures hour = {22.386F, 14.98F, 17.2767372F, 17.9736F};

Settings hop_settings() {
    Settings settings;
    settings.plug_increase = 0.02F;
    settings.pellet_increase = 0.1F;
    settings.kettle_factor = 1;
    settings.first_wort_change = 10;
    settings.mash_hop_change = -20;
    return settings;
}

// An ounce of 5 percent in a batch of 5 gallons, and what differs.
struct LineCase {
    const char* name;
    FourFigures expected;
    float sg = 1.05F, wort = 5, tinseth_points = 50;
    std::int16_t time = 60, boil = 60, first_wort_change = 10;
    HopForm form = HopForm::whole;
    bool form_counts = false;
    float kettle_factor = 1;
    int elevation = 0;
};

float ibu_of(const LineCase& row, HopFormulaCode formula) {
    auto settings = hop_settings();
    settings.HopFormula = formula;
    settings.first_wort_change = row.first_wort_change;
    settings.use_additional_utilization = row.form_counts ? 1 : 0;
    settings.kettle_factor = row.kettle_factor;
    HopUse hop;
    hop.alpha = 5;
    hop.amount = 1;
    hop.boil_time = row.time;
    hop.ibu = 77;
    set_form(hop.record, row.form);
    return line_ibu(hop, {5, row.wort, row.boil, 35, row.sg, row.tinseth_points, row.elevation}, settings);
}

TEST(LineIbu, EveryFormulaUnderEveryCircumstance) {
    using enum HopForm;
    const LineCase rows[] = {
        // clang-format off
        {.name = "an hour, by hand", .expected = hour},
        {.name = "strong wort; not for Tinseth", .expected = {20.3509045F, 13.6181784F, 17.2767372F,
         16.339632F}, .sg = 1.07F},
        {.name = "strong, but boiled as more", .expected = {21.4905548F, 14.3807955F, 17.2767372F,
         17.2546501F}, .sg = 1.07F, .wort = 6},
        {.name = "1.05 itself, boiled as less", .expected = {21.0691776F, 14.0988235F, 17.2767372F,
         16.9163303F}, .wort = 4},
        {.name = "boil gravity; Tinseth alone reads it", .expected = {22.386F, 14.98F, 14.4344406F, 17.9736F},
         .tinseth_points = 70},
        {.name = "dry: Generic bitters", .expected = {0, 0, 0, 3.7445F}, .time = -5},
        {.name = "at the end of the boil", .expected = {0, 0, 0, 3.7445F}, .time = 0},
        {.name = "a minute", .expected = {3.731F, 0, 0.745016992F, 3.7445F}, .time = 1},
        {.name = "first wort", .expected = {24.6246F, 16.478F, 19.0044117F, 19.77096F}, .time = 61},
        {.name = "first wort at 0 percent", .expected = hour, .time = 61, .first_wort_change = 0},
        {.name = "mash", .expected = {17.9088F, 11.984F, 13.8213902F, 14.37888F}, .time = 62},
        {.name = "three above the boil is a boil", .expected = hour, .time = 63},
        {.name = "61 minutes of 90", .expected = {23.1322F, 15.729F, 17.3443241F, 17.9736F}, .time = 61,
         .boil = 90},
        {.name = "plug", .expected = {22.83372F, 15.2796F, 17.6222725F, 18.333072F}, .form = plug,
         .form_counts = true},
        {.name = "pellet", .expected = {24.6246F, 16.478F, 19.0044117F, 19.77096F}, .form = pellet,
         .form_counts = true},
        {.name = "pellet, but the setting is off", .expected = hour, .form = pellet},
        {.name = "a large kettle", .expected = {26.8632F, 17.976F, 20.7320862F, 21.56832F},
         .kettle_factor = 1.2F},
        {.name = "all at once", .expected = {32.5044744F, 21.75096F, 25.0858269F, 26.0976672F}, .time = 61,
         .form = pellet, .form_counts = true, .kettle_factor = 1.2F},
        {.name = "elevation", .expected = {22.386F, 12.4833333F, 17.2767372F, 14.978F}, .elevation = 5500},
        // clang-format on
    };
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < formulae.size(); ++i)
            EXPECT_FLOAT_EQ(ibu_of(row, formulae[i]), row.expected[i]) << row.name << ", formula " << i;
    }
    EXPECT_EQ(ibu_of(rows[0], static_cast<HopFormulaCode>(4)), 77.0F)
        << "an unknown formula computes nothing";
}

// By how much the tables' edges are off is seen in the IBU of an ounce of 1 percent in a gallon.
TEST(LineIbu, UtilizationStepsAtTheEdgesOfTheTables) {
    const struct {
        int minutes;
        float rager, garetz, generic;
    } rows[] = {
        {5, 0.05F, 0, 5},     {6, 0.06F, 0, 5},     {9, 0.06F, 0, 5},     {10, 0.06F, 0, 12},
        {11, 0.08F, 2, 12},   {15, 0.08F, 2, 12},   {16, 0.101F, 5, 12},  {19, 0.101F, 5, 12},
        {20, 0.101F, 5, 15},  {21, 0.121F, 8, 15},  {25, 0.121F, 8, 15},  {26, 0.153F, 11, 15},
        {30, 0.153F, 11, 19}, {31, 0.188F, 14, 19}, {36, 0.228F, 16, 19}, {41, 0.269F, 18, 19},
        {45, 0.269F, 18, 22}, {46, 0.281F, 19, 22}, {50, 0.281F, 19, 22}, {51, 0.30F, 20, 22},
        {60, 0.30F, 20, 24},  {61, 0.31F, 21, 24},  {71, 0.32F, 22, 24},  {75, 0.32F, 22, 27},
        {80, 0.32F, 22, 27},  {81, 0.33F, 23, 27},
    };
    for (const auto& row : rows) {
        const FourFigures expected = {row.rager * 74.62F, row.garetz * 0.749F, 0, row.generic * 0.7489F};
        for (const std::size_t i : {0U, 1U, 3U}) {
            auto settings = hop_settings();
            settings.HopFormula = formulae[i];
            HopUse hop;
            hop.alpha = hop.amount = 1;
            hop.boil_time = static_cast<std::int16_t>(row.minutes);
            EXPECT_FLOAT_EQ(line_ibu(hop, {1, 1, 120, 35, 1.04F, 40, 0}, settings), expected[i])
                << row.minutes << " minutes, formula " << i;
        }
    }
}

HopCalculator calculator() {
    HopCalculator c;
    c.start_alpha = 50; // not to be read
    c.adjusted_alpha = 5;
    c.ounces = 1;
    c.wort_volume = c.batch_volume = 5;
    c.sg = 1.05F;
    c.ibu = 30;
    return c;
}

struct CalculatorCase {
    const char* name;
    FourFigures ibu, ounces; ///< of an ounce, and for 30 IBU
    HopForm form = HopForm::whole;
    bool form_counts = false, first_wort = false, mash_hop = false, bag_and_filter = false;
    float sg = 1.05F;
};

HopCalculator calculator_of(const CalculatorCase& row) {
    auto c = calculator();
    c.form = row.form;
    c.is_first_wort = row.first_wort;
    c.is_mash_hop = row.mash_hop;
    c.bag_used = c.beer_filtered = row.bag_and_filter;
    c.sg = row.sg;
    return c;
}

TEST(HopCalculator, WeightAndIbuAreInverse) {
    using enum HopForm;
    constexpr FourFigures whole_ibu = {22.386F, 14.98F, 17.2767467F, 17.9736F};
    constexpr FourFigures whole_ounces = {1.3401233F, 2.00267029F, 1.73643816F, 1.66911471F};
    constexpr FourFigures tenth_more = {24.6246F, 16.478F, 19.0044212F, 19.77096F};
    constexpr FourFigures tenth_less = {1.21829391F, 1.82060933F, 1.57858002F, 1.51737702F};
    const CalculatorCase rows[] = {
        // clang-format off
        {.name = "whole hops", .ibu = whole_ibu, .ounces = whole_ounces},
        {.name = "pellets, the setting off: Rager and Tinseth apply the form one way", .ibu = {24.6246F,
         14.98F, 19.0044212F, 17.9736F}, .ounces = whole_ounces, .form = pellet},
        {.name = "pellets, the setting on", .ibu = tenth_more, .ounces = tenth_less, .form = pellet,
         .form_counts = true},
        {.name = "first wort goes before mash", .ibu = tenth_more, .ounces = tenth_less, .first_wort = true,
         .mash_hop = true},
        {.name = "mash", .ibu = {17.9088F, 11.984F, 13.8213968F, 14.37888F}, .ounces = {1.67515409F,
         2.50333786F, 2.17054772F, 2.08639336F}, .mash_hop = true},
        {.name = "strong wort, which Tinseth reads here", .ibu = {20.3509045F, 13.6181784F, 14.4344339F,
         16.339632F}, .ounces = {1.47413588F, 2.20293784F, 2.07836342F, 1.83602667F}, .sg = 1.07F},
        {.name = "bag and filter: Garetz alone", .ibu = {22.386F, 14.5408659F, 17.2767467F, 17.9736F},
         .ounces = {1.3401233F, 2.06315088F, 1.73643816F, 1.66911471F}, .bag_and_filter = true},
        // clang-format on
    };
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < formulae.size(); ++i) {
            auto settings = hop_settings();
            settings.HopFormula = formulae[i];
            settings.use_additional_utilization = row.form_counts ? 1 : 0;
            auto by_weight = calculator_of(row), by_ibu = calculator_of(row);
            ibu_from_weight(by_weight, settings);
            weight_from_ibu(by_ibu, settings);
            EXPECT_FLOAT_EQ(by_weight.ibu, row.ibu[i]) << row.name << ", formula " << i;
            EXPECT_FLOAT_EQ(by_ibu.ounces, row.ounces[i]) << row.name << ", formula " << i;
            EXPECT_FLOAT_EQ(by_ibu.grams, row.ounces[i] * 28.35F) << row.name << ", formula " << i;
        }
    }
}

TEST(HopCalculator, WithoutUtilizationKeepsTheLastValueAndTinsethGivesNone) {
    auto settings = hop_settings();
    settings.kettle_factor = 0;
    for (std::size_t i = 0; i < formulae.size(); ++i) {
        const bool is_tinseth = formulae[i] == HopFormulaCode::Tinseth;
        settings.HopFormula = formulae[i];
        auto weight = calculator(), ibu = calculator();
        weight.boil_minutes = 0;
        weight_from_ibu(weight, settings);
        EXPECT_EQ(weight.ounces, is_tinseth ? 0.0F : 1.0F) << "formula " << i;
        ibu.boil_minutes = 0;
        ibu_from_weight(ibu, settings);
        EXPECT_EQ(ibu.ibu, is_tinseth ? 0.0F : 30.0F) << "formula " << i;
    }
}

TEST(HopCalculator, VolumesOfNothingBecomeOneAndStaySo) {
    for (const auto formula : {HopFormulaCode::Garetz, HopFormulaCode::Generic}) {
        auto settings = hop_settings();
        settings.HopFormula = formula;
        auto c = calculator();
        c.wort_volume = 0;
        c.batch_volume = -3;
        weight_from_ibu(c, settings);
        EXPECT_EQ(c.wort_volume, 1.0F);
        EXPECT_EQ(c.batch_volume, 1.0F);
        EXPECT_FLOAT_EQ(c.ounces, formula == HopFormulaCode::Garetz ? 0.400534058F : 0.333822941F);
    }
    auto settings = hop_settings();
    settings.HopFormula = HopFormulaCode::Tinseth;
    auto c = calculator();
    c.batch_volume = 0;
    weight_from_ibu(c, settings);
    EXPECT_EQ(c.batch_volume, 0.0F) << "only the other two";
}

TEST(HopCalculator, ShowsItsFactors) {
    auto settings = hop_settings();
    auto c = calculator();
    c.sg = 1.07F;
    c.wort_volume = 4;
    ibu_from_weight(c, settings);
    EXPECT_FLOAT_EQ(c.factors.concentration, 1.25F);
    EXPECT_FLOAT_EQ(c.factors.gravity, 1.18750048F) << "the adjustment and 1";
    settings.HopFormula = HopFormulaCode::Garetz;
    c.ibu = 26;
    ibu_from_weight(c, settings);
    EXPECT_FLOAT_EQ(c.factors.utilization, 0.2F) << "a fraction";
    EXPECT_FLOAT_EQ(c.factors.hopping_rate, 1.125F) << "from the last IBU";
    EXPECT_FLOAT_EQ(c.factors.combined, 1.18750048F) << "without the hopping rate";
    EXPECT_FLOAT_EQ(hbu(1.5F, 6), 9);
    EXPECT_FLOAT_EQ(mbu(28.35F, 6), 170.1F);
}

TEST(HopStorage, AlphaFallsWithTimeWarmthAndAir) {
    const struct {
        const char* name;
        std::int16_t months;
        float lost_percent, celsius, share, expected;
    } rows[] = {
        {"half a year in jars", 6, 30, 20, 0.75F, 7.65285587F},
        {"the warmest row", 6, 30, 35, 1, 4.9F},
        {"warmer than the table", 6, 30, 50, 1, 4.9F},
        {"the coldest row", 6, 30, -30, 1, 9.65305328F},
        {"colder than the table", 6, 30, -45, 1, 9.65305328F},
        {"degrees are cut: 19.9 reads the row of 19", 6, 30, 19.9F, 0.5F, 8.43401432F},
        {"toward zero: -0.9 reads the row of 0", 6, 30, -0.9F, 0.5F, 9.31648254F},
        {"all lost counts as a thousandth left", 6, 100, 20, 1, 0.01F},
        {"so does more than all", 6, 150, 20, 1, 0.01F},
    };
    for (const auto& row : rows)
        EXPECT_FLOAT_EQ(alpha_after_storage(10, row.months, row.lost_percent, row.celsius, row.share),
                        row.expected)
            << row.name;
    EXPECT_EQ(alpha_after_storage(10, 60, 0, 35, 1), 10.0F)
        << "a hop that loses nothing loses nothing in five years either";
    EXPECT_EQ(storage_share(StorageKind::no_seal), 1.0F);
    EXPECT_EQ(storage_share(StorageKind::airtight), 0.75F);
    EXPECT_EQ(storage_share(StorageKind::inert_gas), 0.5F);
    EXPECT_EQ(storage_share(StorageKind::none), 0.75F) << "the default";
}

} // namespace
} // namespace wortlex
