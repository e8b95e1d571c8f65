#include "brewing/beer_colour.h"
#include "brewing/hop_bitterness.h"
#include "brewing/refractometer.h"
#include "documents/brewing.h"

#include <limits>

namespace wortlex {
namespace {

// The columns of the tables below, in this order.
constexpr std::array formulae = {HopFormulaCode::Rager, HopFormulaCode::Garetz, HopFormulaCode::Tinseth,
                                 HopFormulaCode::Generic};
using FourFigures = std::array<float, formulae.size()>;

// An ounce of 5 percent in a batch of 5 gallons, and what differs.
// clang-format off
struct LineCase {
    const char* name; FourFigures expected; float sg = 1.05F, wort = 5, tinseth_points = 50; int time = 60, boil = 60;
    HopForm form = HopForm::whole; bool form_counts = false; float kettle_factor = 1; int elevation = 0;
};
// clang-format on

float ibu_of(const LineCase& row, HopFormulaCode formula) {
    auto settings = brewing_settings();
    settings.HopFormula = formula;
    settings.use_additional_utilization = row.form_counts ? 1 : 0;
    settings.kettle_factor = row.kettle_factor;
    auto line = hop(5, 1, row.time);
    line.ibu = 77;
    set_form(line.record, row.form);
    return line_ibu(line, {5, row.wort, row.boil, 35, row.sg, row.tinseth_points, row.elevation}, settings);
}

TEST(LineIbu, EveryFormulaUnderEveryCircumstance) {
    constexpr FourFigures hour = {22.386F, 14.98F, 17.2767372F, 17.9736F};
    constexpr FourFigures tenth_more = {24.6246F, 16.478F, 19.0044117F, 19.77096F};
    const LineCase rows[] = {
        // clang-format off
        {"an hour, by hand", hour},
        {"strong wort", {20.3509045F, 13.6181784F, 17.2767372F, 16.339632F}, 1.07F},
        {"strong, boiled as more", {21.4905548F, 14.3807955F, 17.2767372F, 17.2546501F}, 1.07F, 6},
        {"1.05, boiled as less", {21.0691776F, 14.0988235F, 17.2767372F, 16.9163303F}, 1.05F, 4},
        {"the boil's gravity", {22.386F, 14.98F, 14.4344406F, 17.9736F}, 1.05F, 5, 70},
        {.name = "dry", .expected = {0, 0, 0, 3.7445F}, .time = -5},
        {.name = "a minute", .expected = {3.731F, 0, 0.745016992F, 3.7445F}, .time = 1},
        {.name = "first wort", .expected = tenth_more, .time = 61},
        {.name = "mash", .expected = {17.9088F, 11.984F, 13.8213902F, 14.37888F}, .time = 62},
        {.name = "no third kind", .expected = hour, .time = 63},
        {.name = "of 90", .expected = {23.1322F, 15.729F, 17.3443241F, 17.9736F}, .time = 61, .boil = 90},
        {.name = "plug", .expected = {22.83372F, 15.2796F, 17.6222725F, 18.333072F}, .form = HopForm::plug,
         .form_counts = true},
        {.name = "pellet", .expected = tenth_more, .form = HopForm::pellet, .form_counts = true},
        {.name = "form does not count", .expected = hour, .form = HopForm::pellet},
        {.name = "kettle", .expected = {26.8632F, 17.976F, 20.7320862F, 21.56832F}, .kettle_factor = 1.2F},
        {.name = "elevation", .expected = {22.386F, 12.4833333F, 17.2767372F, 14.978F}, .elevation = 5500},
        // clang-format on
    };
    for (const auto& row : rows) {
        FourFigures got{};
        for (std::size_t i = 0; i < got.size(); ++i) got[i] = ibu_of(row, formulae[i]);
        expect_figures(got, row.expected, row.name);
    }
    EXPECT_EQ(ibu_of(rows[0], static_cast<HopFormulaCode>(4)), 77.0F) << "an unknown formula";
}

// By how much the tables' edges are off is seen in the IBU of an ounce of 1 percent in a gallon.
TEST(LineIbu, UtilizationStepsAtTheEdgesOfTheTables) {
    const auto utilizations = +[](int minutes) {
        const auto ibu = [minutes](HopFormulaCode formula) {
            auto settings = brewing_settings();
            settings.HopFormula = formula;
            return line_ibu(hop(1, 1, minutes), {1, 1, 120, 35, 1.04F, 40, 0}, settings);
        };
        return std::array{ibu(HopFormulaCode::Rager) / 74.62F, ibu(HopFormulaCode::Garetz) / 0.749F,
                          ibu(HopFormulaCode::Generic) / 0.7489F};
    };
    // clang-format off
    expect_floats(utilizations, {
        {5, {0.05F, 0, 5}}, {6, {0.06F, 0, 5}}, {9, {0.06F, 0, 5}}, {10, {0.06F, 0, 12}}, {11, {0.08F, 2, 12}},
        {15, {0.08F, 2, 12}}, {16, {0.101F, 5, 12}}, {19, {0.101F, 5, 12}}, {20, {0.101F, 5, 15}}, {21, {0.121F, 8, 15}},
        {25, {0.121F, 8, 15}}, {26, {0.153F, 11, 15}}, {30, {0.153F, 11, 19}}, {31, {0.188F, 14, 19}},
        {36, {0.228F, 16, 19}}, {41, {0.269F, 18, 19}}, {45, {0.269F, 18, 22}}, {46, {0.281F, 19, 22}},
        {50, {0.281F, 19, 22}}, {51, {0.30F, 20, 22}}, {60, {0.30F, 20, 24}}, {61, {0.31F, 21, 24}}, {71, {0.32F, 22, 24}},
        {75, {0.32F, 22, 27}}, {80, {0.32F, 22, 27}}, {81, {0.33F, 23, 27}}});
    // clang-format on
}

// clang-format off
// The alpha before storage is not to be read.
constexpr HopCalculator usual{.start_alpha = 50, .adjusted_alpha = 5, .ounces = 1, .wort_volume = 5,
    .batch_volume = 5, .sg = 1.05F, .ibu = 30, .factors = {}};
// clang-format on

TEST(HopCalculator, WeightAndIbuAreInverse) {
    using C = HopCalculator;
    constexpr FourFigures whole_ibu = {22.386F, 14.98F, 17.2767467F, 17.9736F};
    constexpr FourFigures whole_ounces = {1.3401233F, 2.00267029F, 1.73643816F, 1.66911471F};
    constexpr FourFigures tenth_more = {24.6246F, 16.478F, 19.0044212F, 19.77096F};
    constexpr FourFigures tenth_less = {1.21829391F, 1.82060933F, 1.57858002F, 1.51737702F};
    const auto ibu_and_ounces = +[](bool form_counts, void (*change)(HopCalculator&)) {
        std::array<FourFigures, 2> figures{}; // of an ounce, and for 30 IBU
        auto settings = brewing_settings();
        settings.use_additional_utilization = form_counts ? 1 : 0;
        for (std::size_t i = 0; i < formulae.size(); ++i) {
            settings.HopFormula = formulae[i];
            auto by_weight = usual;
            change(by_weight);
            auto by_ibu = by_weight;
            ibu_from_weight(by_weight, settings);
            weight_from_ibu(by_ibu, settings);
            figures[0][i] = by_weight.ibu;
            figures[1][i] = by_ibu.ounces;
            EXPECT_FLOAT_EQ(by_ibu.grams, by_ibu.ounces * 28.35F) << "formula " << i;
        }
        return figures;
    };
    // clang-format off
    expect_floats(ibu_and_ounces, {
        {false, [](C&) {}, {whole_ibu, whole_ounces}},
        // pellets: without the setting Rager and Tinseth apply the form one way
        {false, [](C& c) { c.form = HopForm::pellet; }, {{{24.6246F, 14.98F, 19.0044212F, 17.9736F}, whole_ounces}}},
        {true, [](C& c) { c.form = HopForm::pellet; }, {tenth_more, tenth_less}},
        // first wort goes before mash
        {false, [](C& c) { c.is_first_wort = c.is_mash_hop = true; }, {tenth_more, tenth_less}},
        {false, [](C& c) { c.is_mash_hop = true; }, {{{17.9088F, 11.984F, 13.8213968F, 14.37888F},
         {1.67515409F, 2.50333786F, 2.17054772F, 2.08639336F}}}},
        // strong wort, which Tinseth reads here
        {false, [](C& c) { c.sg = 1.07F; }, {{{20.3509045F, 13.6181784F, 14.4344339F, 16.339632F},
         {1.47413588F, 2.20293784F, 2.07836342F, 1.83602667F}}}},
        // Garetz alone
        {false, [](C& c) { c.bag_used = c.beer_filtered = true; }, {{{22.386F, 14.5408659F, 17.2767467F, 17.9736F},
         {1.3401233F, 2.06315088F, 1.73643816F, 1.66911471F}}}}});
    // clang-format on
}

TEST(HopCalculator, WithoutUtilizationOrVolumes) {
    const auto figures = +[](HopFormulaCode formula) {
        auto settings = brewing_settings();
        settings.HopFormula = formula;
        auto empty = usual, idle = usual;
        empty.wort_volume = 0;
        empty.batch_volume = -3;
        weight_from_ibu(empty, settings);
        settings.kettle_factor = 0;
        idle.boil_minutes = 0;
        auto backwards = idle;
        weight_from_ibu(idle, settings);
        ibu_from_weight(backwards, settings);
        return std::array{empty.wort_volume, empty.batch_volume, empty.ounces, idle.ounces, backwards.ibu};
    };
    // Volumes become 1 where the formula divides by them. Without utilization the last value stays, except in
    // Tinseth.
    expect_floats(figures, {{HopFormulaCode::Garetz, {1, 1, 0.400534058F, 1, 30}},
                            {HopFormulaCode::Generic, {1, 1, 0.333822941F, 1, 30}},
                            {HopFormulaCode::Tinseth, {0, -3, -0.6F * 1.73643816F, 0, 0}}});
}

TEST(HopStorage, AlphaFallsWithTimeWarmthAndAir) {
    // clang-format off
    expect_floats(alpha_after_storage, {{10, 6, 30, 20, 0.75F, 7.65285587F},
        // the ends of the table and beyond
        {10, 6, 30, 35, 1, 4.9F}, {10, 6, 30, 50, 1, 4.9F}, {10, 6, 30, -30, 1, 9.65305328F},
        {10, 6, 30, -45, 1, 9.65305328F},
        // degrees are cut toward zero
        {10, 6, 30, 19.9F, 0.5F, 8.43401432F}, {10, 6, 30, -0.9F, 0.5F, 9.31648254F},
        // all lost, or more, counts as a thousandth left
        {10, 6, 100, 20, 1, 0.01F}, {10, 6, 150, 20, 1, 0.01F}});
    expect_exactly(alpha_after_storage, {{10, 60, 0, 35, 1, 10}});
    using enum StorageKind;
    expect_exactly(storage_share, {{no_seal, 1}, {airtight, 0.75F}, {inert_gas, 0.5F}, {none, 0.75F}});
    // clang-format on
}

TEST(BeerColour, ThreeFormulaeOverEveryLine) {
    using enum ColorFormula;
    const auto coloured = [](MaltType type, float lovibond, float pounds) {
        return malt(type, 1, pounds, false, 0, lovibond);
    };
    const std::vector malts = {coloured(MaltType::grain, 3, 8), coloured(MaltType::extract, 8, 1.5F),
                               coloured(MaltType::sugar, 0, 0.5F), coloured(MaltType::none, 60, 2)};
    const std::vector paper = {coloured(MaltType::grain, 0, 8)},
                      trace = {coloured(MaltType::grain, 0.001F, 0.001F)};
    // clang-format off
    expect_floats(beer_colour, {{malts, 5, Morey, {31.2F, 13, 15.8003855F}}, {malts, 5, Mosher, {31.2F, 13, 14.06F}},
        {malts, 5, Daniels, {31.2F, 13, 14.64F}}, {malts, 5, static_cast<ColorFormula>(3), {31.2F, 13, 0}},
        // the step from 0 is not taken without colour
        {{}, 5, Mosher, {0, 0, 0}}, {paper, 5, Daniels, {0, 0, 0}}});
    // clang-format on
    EXPECT_FLOAT_EQ(beer_colour(trace, 5, Mosher).srm, 4.7F) << "the step just above 0";
}

TEST(ColorTable, SwatchByAlphaModeAndCalibration) {
    using enum AlphaMode;
    const auto swatch = +[](AlphaMode mode, int alpha, int adjust, int calibration) {
        ColorTable table;
        table.rows[9] = {.red = 250, .green = 100, .blue = 0, .alpha = 128};
        Settings settings;
        settings.alpha_mode = mode;
        settings.global_alpha = alpha;
        settings.global_alpha_adjust = adjust;
        settings.calibration_red = settings.calibration_green = settings.calibration_blue = calibration;
        return swatch_colour(table, 1, settings);
    };
    // clang-format off
    expect_exactly(swatch, {
        {not_used, 10, 10, 0, 0x0064FA}, {static_cast<AlphaMode>(7), 10, 10, 0, 0x0064FA},
        {global_value, 64, 100, 0, 0xBFD8FD}, {from_table, 10, 0, 0, 0x7EB1FC}, {from_table, 10, -64, 0, 0xBFD8FD},
        {from_table, 10, 1000, 0, 0x0064FA}, {from_table, 10, -1000, 0, 0xFFFFFF},
        // blended before it is held: the blend sees -100
        {not_used, 0, 0, -100, 0x000096}, {not_used, 0, 0, 20, 0x1478FF}, {from_table, 0, 0, -100, 0x4C7ECA}});
    // 7 tenths need 32 bits to come out even.
    expect_exactly(color_row_index, {{0, 0}, {-3, 0}, {0.1F, 0}, {0.19F, 0}, {0.2F, 1}, {0.7F, 6}, {1, 9},
        {40, 399}, {100, 399},
        {std::numeric_limits<float>::infinity(), 399}, {std::numeric_limits<float>::quiet_NaN(), 0}});
    expect_exactly(blend_over_white, {{0, 255, 0}, {0, 0, 255}, {100, 128, 177}, {200, 64, 241}});
    // clang-format on
}

TEST(Refractometer, NetZeissAndTheAlcoholOfAReading) {
    Settings pure, offset;
    offset.water_brix = 0.2F;
    // clang-format off
    expect_floats(net_zeiss_from_brix, {{0, pure, 0}, {0.0019F, pure, 0}, {8, pure, 30.9995918F},
        {12, pure, 47.5915222F}, {8, offset, 30.1893692F}, {0.1F, offset, 0}});
    // too low at the last: the extract stands alone
    expect_floats(alcohol_from_reading, {
        {1.012F, 24.5F, {3.58715987F, 4.58938789F, 4.69714546F, 11.6637888F, 24.5F}},
        {1.02F, 30, {2.84800529F, 3.67252254F, 6.38399744F, 11.9077158F, 30}},
        {1.05F, 5, {0, 0, 7.33049393F, 0, 5}}});
    // the step before the turn; where none fits, the reading at 8 Brix
    expect_floats(implied_alcohol, {
        {12.387F, 3.067F, pure, {3.9039402F, 4.99467421F, 4.83593559F, 12.387661F, 25.6771851F}},
        {12, 2.5F, pure, {3.96937871F, 5.06720543F, 4.30414343F, 11.99891F, 23.6216526F}},
        {5, 40, pure, {0, 0, 27.1153908F, 0, 30.9995918F}}});
    // clang-format on
}

} // namespace
} // namespace wortlex
