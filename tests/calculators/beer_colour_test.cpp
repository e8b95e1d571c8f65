#include "calculators/beer_colour.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace wortlex {
namespace {

MaltUse coloured(MaltType type, float lovibond, float pounds) {
    MaltUse line;
    line.record.malt_type = type;
    line.record.colour = lovibond;
    line.amount = pounds;
    return line;
}

TEST(BeerColour, ThreeFormulaeOverEveryLine) {
    const std::vector malts = {coloured(MaltType::grain, 3, 8), coloured(MaltType::extract, 8, 1.5F),
                               coloured(MaltType::sugar, 0, 0.5F), coloured(MaltType::none, 60, 2)};
    const std::vector paper = {coloured(MaltType::grain, 0, 8)};
    const struct {
        const char* name;
        ColorFormula formula;
        std::span<const MaltUse> malts;
        float mcu, average, srm;
    } rows[] = {
        {"Morey", ColorFormula::Morey, malts, 31.2F, 13, 15.8003855F},
        {"Mosher", ColorFormula::Mosher, malts, 31.2F, 13, 14.06F},
        {"Daniels", ColorFormula::Daniels, malts, 31.2F, 13, 14.64F},
        {"unknown", static_cast<ColorFormula>(3), malts, 31.2F, 13, 0},
        {"no malt", ColorFormula::Mosher, {}, 0, 0, 0},
        {"without colour the step from 0 is not taken", ColorFormula::Daniels, paper, 0, 0, 0},
    };
    for (const auto& row : rows) {
        const auto colour = beer_colour(row.malts, 5, row.formula);
        EXPECT_FLOAT_EQ(colour.mcu, row.mcu) << row.name;
        EXPECT_FLOAT_EQ(colour.average_lovibond, row.average) << row.name;
        EXPECT_FLOAT_EQ(colour.srm, row.srm) << row.name;
    }
    const std::vector trace = {coloured(MaltType::grain, 0.001F, 0.001F)};
    EXPECT_FLOAT_EQ(beer_colour(trace, 5, ColorFormula::Mosher).srm, 4.7F) << "the step just above 0";
    const std::vector ten = {coloured(MaltType::grain, 10, 5)};
    EXPECT_NEAR(beer_colour(ten, 5, ColorFormula::Morey).srm, 7.24, 0.005);
    EXPECT_TRUE(std::isinf(beer_colour(ten, 0, ColorFormula::Mosher).srm))
        << "no batch: as the division gives";
}

TEST(ColorTable, RowOfAColour) {
    const struct {
        const char* name;
        float srm;
        std::size_t row;
    } rows[] = {
        {"none", 0, 0},
        {"negative", -3, 0},
        {"the first", 0.1F, 0},
        {"still the first", 0.19F, 0},
        {"the second", 0.2F, 1},
        {"7 tenths, which need 32 bits to come out even", 0.7F, 6},
        {"one", 1, 9},
        {"the last", 40, 399},
        {"above the last", 100, 399},
        {"far above", std::numeric_limits<float>::infinity(), 399},
        {"no number", std::numeric_limits<float>::quiet_NaN(), 0},
    };
    for (const auto& row : rows) EXPECT_EQ(color_row_index(row.srm), row.row) << row.name;
}

TEST(ColorTable, BlendsOverWhite) {
    EXPECT_EQ(blend_over_white(0, 255), 0);
    EXPECT_EQ(blend_over_white(0, 0), 255);
    EXPECT_EQ(blend_over_white(100, 128), 177) << "177.2";
    EXPECT_EQ(blend_over_white(200, 64), 241) << "241.2";
}

TEST(ColorTable, SwatchByAlphaModeAndCalibration) {
    ColorTable table;
    table.rows[9].red = 250;
    table.rows[9].green = 100;
    table.rows[9].blue = 0;
    table.rows[9].alpha = 128;
    const struct {
        const char* name;
        AlphaMode mode;
        std::int32_t alpha, adjust, calibration;
        std::uint32_t expected;
    } rows[] = {
        {"no mode: opaque", AlphaMode::not_used, 10, 10, 0, 0x0064FA},
        {"unknown mode: opaque", static_cast<AlphaMode>(7), 10, 10, 0, 0x0064FA},
        {"the global alpha", AlphaMode::global_value, 64, 100, 0, 0xBFD8FD},
        {"the row's alpha", AlphaMode::from_table, 10, 0, 0, 0x7EB1FC},
        {"and the adjustment", AlphaMode::from_table, 10, -64, 0, 0xBFD8FD},
        {"held at opaque", AlphaMode::from_table, 10, 1000, 0, 0x0064FA},
        {"held at clear", AlphaMode::from_table, 10, -1000, 0, 0xFFFFFF},
        {"calibrated below 0 and held there", AlphaMode::not_used, 0, 0, -100, 0x000096},
        {"calibrated above 255 and held there", AlphaMode::not_used, 0, 0, 20, 0x1478FF},
        {"clear before it is held: the blend sees -100", AlphaMode::from_table, 0, 0, -100, 0x4C7ECA},
    };
    for (const auto& row : rows) {
        Settings settings;
        settings.alpha_mode = row.mode;
        settings.global_alpha = row.alpha;
        settings.global_alpha_adjust = row.adjust;
        settings.calibration_red = settings.calibration_green = settings.calibration_blue = row.calibration;
        EXPECT_EQ(swatch_colour(table, 1, settings), row.expected) << row.name;
    }
}

} // namespace
} // namespace wortlex
