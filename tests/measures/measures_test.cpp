#include "measures/gravity.h"
#include "measures/potential.h"
#include "measures/rounding.h"
#include "measures/units.h"
#include "support/worked_figures.h"

#include <limits>

namespace wortlex {
namespace {

TEST(Rounding, CutsAfterTheNudge) {
    constexpr float not_a_number = std::numeric_limits<float>::quiet_NaN();
    // clang-format off
    expect_exactly(trunc_to_precision, {
        {0.9879F, 1, 0.9F}, {0.9881F, 1, 1.0F}, {1.9985F, 2, 1.99F}, {1.9989F, 2, 2.0F}, {1.23479F, 3, 1.234F},
        {1.2349F, 3, 1.235F}, {2.34567F, 4, 2.3456F}, {1.0479999F, 5, 1.048F}, {1.23456789F, 6, 1.234568F},
        // no known numbers of decimals
        {3.1415927F, 7, 3.1415927F}, {3.1415927F, 0, 3.1415927F},
        // toward zero, and the nudge moves up
        {-1.26F, 1, -1.2F}, {-1.2F, 1, -1.1F},
        // what is out of range is the smallest integer
        {3e9F, 1, -214748364.8F}});
    EXPECT_TRUE(std::isnan(trunc_to_precision(not_a_number, 3))) << "no number stays none";
    expect_exactly(trunc_5, {{1.2399912F, 1.24}, {1.239990F, 1.23999}, {-0.00005F, -0.00004},
        {100000, -21474.83648}});
    // The nudge is larger from 1 on.
    expect_exactly(two_decimals, {{0.0090F, 0.0F}, {0.0092F, 0.01F}, {0.9982F, 0.99F}, {0.9992F, 1.0F},
        {1.0080F, 1.0F}, {1.0082F, 1.01F}, {2.4982F, 2.5F}});
    expect_exactly(gravity_close, {{1.04F, 1.0409F, true}, {1.0409F, 1.04F, true}, {1.04F, 1.041F, false},
        {1.041F, 1.04F, false}});
    // clang-format on
}

// Every conversion by the units setting that it must read; all other units say the opposite.
std::array<float, 4> converted(float (*convert)(float, const Settings&), Units SystemSettings::*units,
                               float from) {
    std::array<float, 4> shown{}; // American at home and pro, metric at home and pro
    for (std::size_t i = 0; i < shown.size(); ++i) {
        Settings settings;
        settings.volume_units = settings.weight_units = settings.hop_weight_units = settings.pressure_units =
            i < 2 ? Units::metric : Units::american;
        settings.*units = i < 2 ? Units::american : Units::metric;
        settings.system_mode = i % 2 == 0 ? SystemMode::home_brewer : SystemMode::pro_brewer;
        shown[i] = convert(from, settings);
    }
    return shown;
}

TEST(Units, ConvertInBothDirectionsUnderEveryUnitAndMode) {
    using S = SystemSettings;
    // clang-format off
    expect_floats(converted, {
        {to_shown_volume, &S::volume_units, 310, {310, 10, 1173.443F, 11.73443F}},
        {from_shown_volume, &S::volume_units, 10, {10, 310, 2.64178125F, 264.178125F}},
        {quarts_to_shown, &S::volume_units, 8, {8, 2, 7.5706F, 7.5706F}},
        {shown_to_quarts, &S::volume_units, 8, {8, 32, 8.4537F, 8.4537F}},
        {hop_to_shown, &S::hop_weight_units, 8, {8, 0.5F, 226.8F, 0.2268F}},
        {shown_to_hop, &S::hop_weight_units, 5.67F, {5.67F, 90.72F, 0.2F, 200}},
        {small_to_shown, &S::volume_units, 8, {8, 0.5F, 226.8F, 0.2268F}},
        {grain_to_shown, &S::weight_units, 10, {10, 10, 4.536F, 4.536F}},
        {shown_to_grain, &S::weight_units, 4.536F, {4.536F, 4.536F, 10, 10}},
        {pressure_to_shown, &S::pressure_units, 10, {10, 10, 68.948F, 68.948F}},
        {shown_to_pressure, &S::pressure_units, 68.948F, {68.948F, 68.948F, 10, 10}}});
    // clang-format on
}

TEST(Units, CelsiusForDisplayRoundsAndNeverShowsFrost) {
    Settings settings;
    settings.temperature_units = TemperatureUnits::celsius;
    // What is not yet cut to a negative number is shown.
    for (const auto& [fahrenheit, shown] :
         {std::pair{212.0F, 100.5F}, {32.0F, 0.5F}, {30.0F, -0.61111111F}, {29.0F, 0.0F}, {0.0F, 0.0F}})
        EXPECT_FLOAT_EQ(to_shown_temperature(fahrenheit, settings), shown) << fahrenheit;
    settings.temperature_units = TemperatureUnits::fahrenheit;
    EXPECT_EQ(to_shown_temperature(-4, settings), -4.0F) << "F is shown as it is";
    EXPECT_FLOAT_EQ(celsius_from_fahrenheit(-4), -20) << "entry fields have neither the half nor the pin";
    EXPECT_FLOAT_EQ(fahrenheit_from_celsius(-20), -4);
}

TEST(Units, ColourScales) {
    using enum ColorUnits;
    const auto shown_and_back = +[](ColorUnits units, float shown_of, float back_of) {
        Settings settings;
        settings.color_units = units;
        return std::array{to_shown_colour(shown_of, settings), from_shown_colour(back_of, settings)};
    };
    // What the traditional scale stops at reads back as its offset.
    // clang-format off
    expect_floats(shown_and_back, {{srm, 10, 10, {10, 10}}, {ebc_new, 10, 19.7F, {19.7F, 10}},
        {ebc_traditional, 10, 25.3F, {25.3F, 10}}, {ebc_traditional, 0, 0, {0, 0.45283019F}},
        {ebc_traditional, 0, -2, {0, 0}}});
    // clang-format on
}

TEST(Gravity, OfPlatoYieldAndExtract) {
    // clang-format off
    // Both scales have two branches; 28.062 would be the first's.
    expect_exactly(sg_to_plato, {{1, 0}, {0.99F, 0}, {1.01F, 2.56F}, {1.048F, 11.912F}, {1.08F, 19.331F},
        {1.0801F, 19.353F}, {1.12F, 28.056F}, {2, 171.647F}});
    expect_exactly(plato_to_sg, {{0, 1.00002F}, {-5, 1}, {12, 1.04837F}, {19.331F, 1.08F}, {20, 1.08298F},
        {40, 1.17881F}, {150, 1.88403F}});
    // Yields are held between nothing and all sugar.
    expect_floats(yield_from_sg, {{0.99F, 0}, {1, 0}, {1.036F, 77.9052505F}, {1.0463F, 100}});
    expect_floats(sg_from_yield, {{80, 1.036968F}, {120, 1.04621F}});
    expect_floats(points_from_yield, {{80, 36.968F}, {120, 46.21F}});
    expect_floats(as_is_yield, {{80, 4, 76.8F}, {120, 4, 100}});
    expect_floats(dry_yield, {{76.8F, 4, 80}, {99, 4, 100}});
    expect_floats(hwe_from_points, {{36.968F, 308.8F}, {-1, 0}});
    expect_floats(extract_per_gallon, {{1.05F, 1.0834533F}, {1.1F, 2.17688036F}});
    // -1 is more than any wort holds, or less than none.
    expect_floats(points_from_extract, {{0, 0}, {0.4F, 18.5387726F}, {1.08F, 49.8488541F}, {4, 182.048859F},
        {20, 788.488831F}, {40, -1}, {-1, -1}});
    // clang-format on
}

TEST(Gravity, AlcoholAndAttenuation) {
    const auto all = +[](float og, float fg) {
        const float by_weight = alcohol_by_weight(og, fg);
        return std::array{by_weight, alcohol_by_volume(by_weight, fg), apparent_attenuation(og, fg),
                          real_attenuation(og, fg)};
    };
    // clang-format off
    expect_floats(all, {{1.05F, 1.012F, {3.90910721F, 5.00128508F, 75.2321014F, 62.6048965F}},
        {1.09F, 1.02F, {7.22746468F, 9.31986618F, 76.4343033F, 64.3138504F}},
        {1, 1, {0, 0, 0, 0}}, {1.01F, 1.05F, {0, 0, 0, 0}}, {0, 1.01F, {0, 0, 0, 0}}, {1.05F, 0, {0, 0, 0, 0}}});
    expect_floats(alcohol_by_volume, {{4, 0, 0}});
    expect_floats(real_attenuation_re, {{1.05F, 4.5F, 65.1854935F}, {0, 4.5F, 0}, {1.05F, 13, 0}});
    expect_floats(potential_alcohol, {{1.05F, 6.56897974F}});
    // clang-format on
}

constexpr PotentialTraits grain{4, 78.5F, true}, kettle_sugar{4, 78.5F, false};

TEST(Potential, ShowsAndReadsEverySetting) {
    using enum PotentialDisplay;
    using enum YieldType;
    const auto both = +[](PotentialDisplay display, YieldType type, PotentialTraits of, float sg,
                          float shown) {
        Settings settings;
        settings.potential_display = display;
        settings.yield_type = type;
        return std::array{potential_to_shown(sg, of, settings), potential_from_shown(shown, of, settings)};
    };
    // clang-format off
    expect_floats(both, {
        {sg, coarse_as_is, grain, 1.037F, 1.037F, {1.037F, 1.037F}}, {points, coarse_as_is, grain, 1.037F, 37, {37, 1.037F}},
        {hwe, coarse_as_is, grain, 1.037F, 309.066F, {309.066F, 1.037F}},
        {plato, coarse_as_is, grain, 1.037F, 9.25F, {9.25F, 1.03699F}},
        {percent_yield, fine_dry_basis, grain, 1.037F, 80.0691147F, {80.0691147F, 1.037F}},
        {percent_yield, fine_as_is, grain, 1.037F, 76.8663483F, {76.8663483F, 1.037F}},
        // what is above the coarse yield counts twice on the way back
        {percent_yield, coarse_dry_basis, grain, 1.037F, 78.5F, {78.5F, 1.03627F}},
        {percent_yield, coarse_as_is, grain, 1.037F, 75.36F, {75.36F, 1.03627F}},
        {percent_yield, coarse_as_is, kettle_sugar, 1.037F, 80.0691147F, {80.0691147F, 1.037F}},
        // not above sugar, nor below nothing
        {plato, fine_dry_basis, grain, 1.06F, 11.553F, {11.553F, 1.0462F}},
        {percent_yield, fine_dry_basis, grain, 1.06F, 100, {100, 1.04621F}},
        {points, fine_dry_basis, grain, 0.99F, 0, {0, 1}}});
    // clang-format on
    expect_exactly(potential_from_shown_plain, {{20, plato, 1.04621F}, {-5, sg, 0}});
}

TEST(Extract, ShowsEverySetting) {
    using enum ExtractDisplay;
    using enum Units;
    const auto shown = +[](ExtractDisplay display, Units weight_units, float og_points, float line_sg) {
        Settings settings;
        settings.weight_units = weight_units;
        settings.extract_display = display;
        return extract_to_shown(line_sg, 2.3456789F, {og_points, 9.5}, settings);
    };
    // clang-format off
    expect_floats(shown, {
        // the gravity is not cut, kilograms are of the cut pounds
        {sg, american, 48, 1.0123456F, 1.0123456F}, {points, american, 48, 1.0123456F, 12.345F},
        {weight, american, 48, 1.0123456F, 2.345F}, {weight, metric, 48, 1.0123456F, 1.06369197F},
        // Plato by the share of gravity, and of the line alone where there is none
        {plato, american, 48, 1.0123456F, 3.062F}, {plato, american, 0, 1.0123456F, 3.154F},
        {percent, american, 48, 1.0123456F, 24.6842117F}, {points, american, 48, 0.99F, 0}});
    // clang-format on
}

} // namespace
} // namespace wortlex
