#include "mash/strike_calculator_form.h"
#include "support/form_user.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

// The calculator at its first opening in a kitchen.
struct Strike : FormUser {
    Settings settings;
    StrikeCalculator calculator;

    explicit Strike(SystemMode mode = SystemMode::home_brewer) {
        settings.system_mode = mode;
        settings.grain_temperature = 80;
        settings.grain_water_volume = 1.32F;
        calculator = new_strike_calculator(settings);
        open_strike_calculator(calculator, settings);
        strike_calculator_form(form, calculator, settings);
    }
    std::string result() const { return shown_all({"strike_fahrenheit", "strike_celsius", "mash_gallons"}); }
};

TEST(StrikeCalculator, OpensWithTheCelsiusOfTheMash) {
    Strike strike;
    EXPECT_EQ(strike.result(), "167.00| 68.33|  3.80") << "0.2 / 1.2 x 75 + 155; 10 x (1.32 + 0.2) / 4";
    EXPECT_EQ(strike.shown_all({"kilograms", "litres", "litres_per_kilogram", "mash_litres"}),
              "4.54|11.36|2.50| 14.38");
    strike.spin("grain_fahrenheit", Spin::down);
    EXPECT_EQ(strike.result(), "167.00| 75.00|  3.80");
    open_strike_calculator(strike.calculator, strike.settings);
    EXPECT_EQ(strike.result(), "167.00| 68.33|  3.80") << "at every opening";
}

TEST(StrikeCalculator, CutsOffBeforeTheTunAndNotBehindIt) {
    Strike strike;
    strike.type("thermal_mass", "0.5");
    EXPECT_EQ(strike.result(), "183.70| 84.28|  3.80") << "167 + 2 x 0.05 x 167";
    strike.type("wanted_celsius", "71");
    EXPECT_EQ(strike.shown("wanted_fahrenheit"), "159.80");
    EXPECT_EQ(strike.shown("strike_fahrenheit"), "190.30") << "173 x 1.1";
    strike.type("thermal_mass", "0.01");
    strike.spin("thermal_mass", Spin::down);
    EXPECT_EQ(strike.calculator.thermal_mass, 0);
}

TEST(StrikeCalculator, AmountsAndRatiosFollowEachOther) {
    Strike strike;
    strike.type("kilograms", "10");
    EXPECT_EQ(strike.shown_all({"pounds", "quarts", "quarts_per_pound"}), "22.05|12.00|0.54")
        << "10000 / 28.35 / 16";
    strike.type("pounds", "8");
    strike.type("litres", "10");
    EXPECT_EQ(strike.shown_all({"quarts", "quarts_per_pound"}), "10.57|1.32") << "10 x 33.8148 / 32";
    strike.type("quarts_per_pound", "0.01");
    EXPECT_FLOAT_EQ(strike.calculator.water.quarts, 0.4F) << "0.05 a pound";
    strike.type("litres_per_kilogram", "2.5");
    EXPECT_EQ(strike.shown_all({"litres", "quarts"}), "9.07|9.59") << "2.5 x 3.6288";
    strike.type("litres_per_kilogram", "101");
    EXPECT_EQ(strike.shown("litres"), "9.07");
    strike.type("pounds", "0");
    EXPECT_EQ(strike.shown_all({"quarts_per_pound", "litres_per_kilogram", "strike_fahrenheit"}),
              "0.00|0.00|155.00");
    strike.spin("kilograms", Spin::down);
    EXPECT_EQ(strike.calculator.grain.pounds, 0);
}

TEST(StrikeCalculator, ArrowsGoFurtherThanTyping) {
    Strike strike;
    strike.type("pounds", "10000.5");
    EXPECT_EQ(strike.calculator.grain.pounds, 10);
    strike.type("pounds", "10000");
    strike.spin("pounds", Spin::up);
    EXPECT_EQ(strike.calculator.grain.pounds, 10000.25F);
    strike.type("wanted_fahrenheit", "222");
    EXPECT_EQ(strike.calculator.wanted.fahrenheit, 155);
}

TEST(StrikeCalculator, ABreweryMashesByTheGallon) {
    Strike strike(SystemMode::pro_brewer);
    EXPECT_EQ(strike.shown_all({"pounds", "quarts", "quarts_per_pound"}), "1200.00|300.00|1.00");
    strike.type("quarts", "450");
    EXPECT_EQ(std::pair(strike.calculator.water.quarts, strike.shown("litres")),
              std::pair(1800.0F, std::string("1703.39")));
}

} // namespace
} // namespace wortlex
