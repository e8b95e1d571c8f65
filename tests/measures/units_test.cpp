#include "measures/units.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

struct Choice {
    const char* name;
    Units units;
    SystemMode mode;
};

// The columns of the tables below, in this order.
constexpr Choice choices[] = {
    {"American, home", Units::american, SystemMode::home_brewer},
    {"American, pro", Units::american, SystemMode::pro_brewer},
    {"metric, home", Units::metric, SystemMode::home_brewer},
    {"metric, pro", Units::metric, SystemMode::pro_brewer},
};

using Conversion = float (*)(float, const Settings&);

// Every conversion by the units setting that it must read; all other units say the opposite.
TEST(Units, ConvertInBothDirectionsUnderEveryUnitAndMode) {
    const struct {
        const char* name;
        Conversion convert;
        Units SystemSettings::*units;
        float from;
        std::array<float, 4> expected;
    } rows[] = {
        // clang-format off
        {"volume to shown", to_shown_volume, &SystemSettings::volume_units, 310, {310, 10, 1173.443F,
         11.73443F}},
        {"volume from shown", from_shown_volume, &SystemSettings::volume_units, 10, {10, 310, 2.64178125F,
         264.178125F}},
        {"quarts to shown, litres even in pro", quarts_to_shown, &SystemSettings::volume_units, 8, {8, 2,
         7.5706F, 7.5706F}},
        {"quarts from shown", shown_to_quarts, &SystemSettings::volume_units, 8, {8, 32, 8.4537F, 8.4537F}},
        {"hops to shown", hop_to_shown, &SystemSettings::hop_weight_units, 8, {8, 0.5F, 226.8F, 0.2268F}},
        {"hops from shown", shown_to_hop, &SystemSettings::hop_weight_units, 5.67F, {5.67F, 90.72F, 0.2F,
         200}},
        {"doses to shown follow the volume", small_to_shown, &SystemSettings::volume_units, 8, {8, 0.5F,
         226.8F, 0.2268F}},
        {"doses from shown follow the volume", shown_to_small, &SystemSettings::volume_units, 5.67F, {5.67F,
         90.72F, 0.2F, 200}},
        {"grain to shown knows no mode", grain_to_shown, &SystemSettings::weight_units, 10, {10, 10, 4.536F,
         4.536F}},
        {"grain from shown knows no mode", shown_to_grain, &SystemSettings::weight_units, 4.536F, {4.536F,
         4.536F, 10, 10}},
        {"pressure to shown", pressure_to_shown, &SystemSettings::pressure_units, 10, {10, 10, 68.948F,
         68.948F}},
        {"pressure from shown", shown_to_pressure, &SystemSettings::pressure_units, 68.948F, {68.948F,
         68.948F, 10, 10}},
        // clang-format on
    };
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < row.expected.size(); ++i) {
            const auto opposite = choices[i].units == Units::metric ? Units::american : Units::metric;
            Settings settings;
            settings.volume_units = settings.weight_units = settings.hop_weight_units = opposite;
            settings.pressure_units = opposite;
            settings.*row.units = choices[i].units;
            settings.system_mode = choices[i].mode;
            EXPECT_FLOAT_EQ(row.convert(row.from, settings), row.expected[i])
                << row.name << ", " << choices[i].name;
        }
    }
}

TEST(Units, CelsiusForDisplayRoundsAndNeverShowsFrost) {
    Settings settings;
    settings.temperature_units = TemperatureUnits::celsius;
    const struct {
        const char* name;
        float fahrenheit, shown;
    } rows[] = {
        {"boiling carries the half", 212, 100.5F},
        {"freezing", 32, 0.5F},
        {"not yet cut to a negative number", 30, -0.61111111F},
        {"pinned from -1 down", 29, 0},
        {"far below freezing", 0, 0},
    };
    for (const auto& row : rows)
        EXPECT_FLOAT_EQ(to_shown_temperature(row.fahrenheit, settings), row.shown) << row.name;
    settings.temperature_units = TemperatureUnits::fahrenheit;
    EXPECT_EQ(to_shown_temperature(0, settings), 0.0F);
    EXPECT_EQ(to_shown_temperature(-4, settings), -4.0F) << "F is shown as it is";
    EXPECT_FLOAT_EQ(celsius_from_fahrenheit(-4), -20) << "entry fields have neither the half nor the pin";
    EXPECT_FLOAT_EQ(fahrenheit_from_celsius(-20), -4);
}

TEST(Units, ColourScales) {
    const struct {
        const char* name;
        ColorUnits units;
        float srm, shown, back;
    } rows[] = {
        {"SRM", ColorUnits::srm, 10, 10, 10},
        {"EBC", ColorUnits::ebc_new, 10, 19.7F, 10},
        {"traditional EBC", ColorUnits::ebc_traditional, 10, 25.3F, 10},
        {"traditional EBC stops at 0, which reads back as its offset", ColorUnits::ebc_traditional, 0, 0,
         0.45283019F},
    };
    Settings settings;
    for (const auto& row : rows) {
        settings.color_units = row.units;
        EXPECT_FLOAT_EQ(to_shown_colour(row.srm, settings), row.shown) << row.name;
        EXPECT_FLOAT_EQ(from_shown_colour(row.shown, settings), row.back) << row.name;
    }
    settings.color_units = ColorUnits::ebc_traditional;
    EXPECT_EQ(from_shown_colour(-2, settings), 0.0F);
}

} // namespace
} // namespace wortlex
