#include "base/number.h"
#include "forms/numeric_fields.h"
#include "support/field.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

Settings with_precision(std::uint32_t precision) {
    Settings settings;
    settings.sg_precision = settings.plato_precision = precision;
    return settings;
}

constexpr auto fahrenheit = TemperatureUnits::fahrenheit, celsius = TemperatureUnits::celsius;

TEST(TypedFloat, TakesNumbersInRangeAndThrowsOutWhatNoNumberHas) {
    // clang-format off
    for (const auto& [typed, text, value] : {std::tuple{"4.25", "4.25", 4.25F}, {"1.0", "1.0", 1.0F},
         {"100", "100", 100.0F}, {" 7", " 7", 7.0F}, {"1.0x", "1.0", 3.5F}, {"4x5", "4", 3.5F},
         {"x", "3.50", 3.5F}, {"-4", "3.50", 3.5F}, {"4-", "4", 3.5F}, {"4e1", "4", 3.5F},
         {"0.99", "0.99", 3.5F}, {"100.1", "100.1", 3.5F}, {"", "", 3.5F}, {"3.5", "3.5", 3.5F},
         {"12.34567", "12.34567", 12.345F}}) {
        // clang-format on
        PlainField field(typed, 2);
        float held = 3.5F;
        EXPECT_EQ(typed_float(field, held, {1, 100}, 4), value != 3.5F) << typed;
        EXPECT_EQ(field.content, text) << typed;
        EXPECT_EQ(held, value) << typed;
        EXPECT_EQ(field.position, 2) << typed;
    }
    PlainField empty, minus("-4");
    float value = 3.5F;
    EXPECT_TRUE(typed_signed_float(minus, value, {-5, 5}, 4));
    EXPECT_EQ(value, -4.0F);
    EXPECT_TRUE(typed_float(empty, value, {0, 5}, 4)) << "empty is 0";
    EXPECT_EQ(value, 0.0F);
}

TEST(TypedScales, CountTheirDecimalsAndCutWhatIsBeyond) {
    for (const auto& [precision, sg, plato] :
         {std::tuple{0U, 1.048F, 12.3F}, {1U, 1.0481F, 12.34F}, {2U, 1.04812F, 12.345F}}) {
        PlainField gravity("1.048127"), extract("12.3456");
        float sg_value = 1, plato_value = 0;
        EXPECT_TRUE(typed_sg(gravity, sg_value, {1, 2}, 5, with_precision(precision)));
        EXPECT_TRUE(typed_plato(extract, plato_value, {0, 40}, 4, with_precision(precision)));
        EXPECT_FLOAT_EQ(sg_value, sg);
        EXPECT_FLOAT_EQ(plato_value, plato);
    }
    PlainField refused("9");
    float sg = 1.0481279F, plato = 12.34567F;
    EXPECT_FALSE(typed_sg(refused, sg, {1, 2}, 5, with_precision(0)));
    EXPECT_FALSE(typed_plato(refused, plato, {10, 40}, 5, with_precision(0)));
    EXPECT_FLOAT_EQ(sg, 1.04812F) << "also of a value that stays";
    EXPECT_FLOAT_EQ(plato, 12.345F);
}

TEST(TypedTemperature, PullsTheNumberIntoItsRange) {
    // clang-format off
    for (const auto& [units, typed, old, text, value] : {std::tuple{fahrenheit, "221", 150, "221", 221},
         {fahrenheit, "222", 150, "221", 221}, {celsius, "105", 50, "105", 105},
         {celsius, "106", 50, "105", 105}, {fahrenheit, "", 150, "", 0}, {fahrenheit, "15x", 150, "15", 150},
         {fahrenheit, "x", 150, "150", 150}, {celsius, "x", 212, "100", 212}, {celsius, "x", 99, "37", 99}}) {
        // clang-format on
        PlainField field(typed);
        std::int32_t held = old;
        EXPECT_EQ(typed_temperature(units, field, held, 3), value != old) << typed;
        EXPECT_EQ((std::pair{field.content, held}), (std::pair{std::string(text), value})) << typed;
    }
}

TEST(Spin, StepsFromInsideTheRangeAndMayEndBeyond) {
    constexpr auto up = Spin::up, down = Spin::down, none = Spin::none;
    // clang-format off
    for (const auto& [text, old, direction, shown, value] : {std::tuple{"10", 10.0F, up, "10", 10.0F},
         {"9.75", 9.75F, up, "10.25", 10.25F}, {"1", 1, down, "1", 1}, {"1.25", 1.25F, down, "0.75", 0.75F},
         {"4", 2, up, "4.50", 4.5F}, {"4", 2, none, "4", 4}, {"99", 2, up, "2.50", 2.5F},
         {"99", 2, none, "99", 2}, {"", 2, down, "1.50", 1.5F}, {"2x", 3, none, "2x", 2}}) {
        // clang-format on
        PlainField field(text);
        float held = old;
        EXPECT_EQ(spin_float(field, held, {1, 10, 0.5F}, 4, direction, "%0.2f"), value != old) << text;
        EXPECT_EQ((std::pair{field.content, held}), (std::pair{std::string(shown), value})) << text;
    }
    PlainField whole("7"), gravity("1.050"), extract("12.0"), warm("105");
    std::int32_t seven = 7, degrees = 105;
    float sg = 1.05F, plato = 12;
    EXPECT_TRUE(spin_int(whole, seven, {0, 9, 1}, 2, Spin::down, "%3d"));
    EXPECT_TRUE(spin_sg(gravity, sg, {1, 2, 0.001F}, 5, Spin::up, 6, with_precision(1)));
    EXPECT_TRUE(spin_plato(extract, plato, {0, 40, 0.5F}, 4, Spin::up, 6, with_precision(1)));
    EXPECT_FALSE(spin_temperature(celsius, warm, degrees, 3, Spin::up)) << "at the highest";
    EXPECT_EQ(whole.content + gravity.content + extract.content + warm.content, "  61.0510 12.50105");
}

TEST(Show, PrintsByThePatternOfTheField) {
    PlainField field;
    show_sg(field, 1.0480499F, 7, with_precision(2));
    EXPECT_EQ(field.content, "1.04805");
    show_sg(field, 1.0486F, 6, with_precision(0));
    EXPECT_EQ(field.content, " 1.049");
    show_plato(field, 12.3456F, 7, with_precision(2));
    EXPECT_EQ(field.content, " 12.345");
    show_int(field, -5, "%3d");
    EXPECT_EQ(field.content, " -5");
    // clang-format off
    for (const auto& [pattern, value, text] : {std::tuple{"%7.3f", 1.5, "  1.500"}, {"%3d", 7.9, "  7"},
         {"%02d", 5.0, "05"}, {"%06.1f", -2.25, "-002.2"}, {"%5.1f", -0.04, "  0.0"}, {"%0.0f%%", 75.0, "75%"},
         {"at %0.1f F", 68.0, "at 68.0 F"}, {"%6.1f", NAN, "    --"}, {"%03d", NAN, " --"},
         {"%0.2f", INFINITY, "--"}})
        // clang-format on
        EXPECT_EQ(formatted(pattern, value), text);
}

} // namespace
} // namespace wortlex
