#include "mash/simple_mash_form.h"
#include "mash/strike_water_form.h"
#include "support/form_user.h"
#include "support/recording_desk.h"

#include <gmock/gmock.h>

namespace wortlex {
namespace {

// A single step of 10 pounds and 12 quarts that is infused to mash out.
struct MashedSession : FormUser {
    Settings settings;
    SimpleMashWork work;

    explicit MashedSession(Units units = Units::american, SystemMode mode = SystemMode::home_brewer) {
        settings.volume_units = units;
        settings.system_mode = mode;
        settings.temperature_units = TemperatureUnits::fahrenheit;
        settings.grain_water_volume = 1.32F;
        SimpleMash mash;
        mash.mash_kind = MashKind::single_step;
        mash.saccharification = {152, 60};
        mash.mash_out = {168, 10};
        mash.dough_in_water = 12;
        work = open_simple_mash(mash, 0, 10, settings);
        simple_mash_form(form, work, settings, MashSide::session);
    }
    std::string open_infusions() const {
        std::string open;
        for (const auto* const key : {"protein", "intermediate", "saccharification", "mash_out"})
            open += can(std::string(key) + "_infusion") ? std::string(key) + ' ' : "";
        return open;
    }
};

TEST(SessionMash, InfusionsCountWhereTheSessionHeatsByThem) {
    MashedSession day;
    EXPECT_EQ(day.open_infusions(), "") << "direct heat";
    day.choose("heat_type", 1);
    EXPECT_EQ(day.open_infusions(), "mash_out ");
    day.type("mash_out_infusion", "210");
    EXPECT_EQ(day.shown_all({"mash_out_needed", "quarts_added", "volume_added", "total_volume"}),
              "  5.33|  5.33|  1.33|5.13")
        << "16 x (10 x 0.2 + 12) / 42; 10 x (1.32 + 0.733) / 4";
    day.choose("heat_type", 0);
    EXPECT_EQ(day.shown("total_volume"), "3.80") << "the dough-in alone";
}

TEST(SessionMash, AnInfusionNeedsItsRestAndOneBefore) {
    MashedSession day;
    day.choose("heat_type", 1);
    day.choose("mash_kind", 1);
    day.type("protein_temperature", "122");
    day.type("protein_minutes", "20");
    EXPECT_EQ(day.open_infusions(), "saccharification mash_out ");
    day.type("acid_temperature", "100");
    EXPECT_EQ(day.open_infusions(), "saccharification mash_out ") << "a rest of no time is none";
    day.type("acid_minutes", "20");
    day.type("intermediate_temperature", "140");
    day.type("intermediate_minutes", "5");
    EXPECT_EQ(day.open_infusions(), "protein intermediate saccharification mash_out ");
    day.type("protein_infusion", "210");
    EXPECT_EQ(day.shown("protein_needed"), "  3.50") << "22 x 14 / 88";
    day.choose("mash_kind", 0);
    EXPECT_EQ(day.open_infusions(), "mash_out ");
}

TEST(SessionMash, AddedWaterIsShownInTheUnitsOfTheSystem) {
    const auto shown = [](Units units, SystemMode mode) {
        MashedSession day(units, mode);
        day.choose("heat_type", 1);
        day.work.session.infusions.mash_out.temperature = 210;
        day.type("mash_out_minutes", "15");
        return day.shown_all({"mash_out_needed", "quarts_added", "volume_added"}) + ' ' +
               day.label("volume_added");
    };
    EXPECT_EQ(shown(Units::metric, SystemMode::home_brewer), "  5.05|  5.33|  5.05 Liters Added");
    EXPECT_EQ(shown(Units::american, SystemMode::pro_brewer), "  1.33|  1.33|  0.04 bbl Added");
    EXPECT_EQ(shown(Units::metric, SystemMode::pro_brewer), "  5.05|  5.05|  0.05 Hectoliters Added");
}

TEST(SessionMash, RunningsHaveTwoScales) {
    MashedSession day;
    day.type("wort_ph", "2");
    EXPECT_EQ(day.work.session.wort_ph, 3);
    day.type("runnings_sg", "1.04");
    EXPECT_EQ(day.shown_all({"runnings_sg", "runnings_plato"}), "1.040000|9.993000")
        << "135.997 x 1.124864 - 630.272 x 1.0816 + 1111.14 x 1.04 - 616.868";
    day.type("runnings_plato", "2.56");
    EXPECT_EQ(day.shown("runnings_sg"), "1.010000");
}

// 10 pounds and 10 quarts that are to come to 150 degrees, with grain at 60.
struct StrikeDay : FormUser {
    Settings settings;
    StrikeWater water{10, 10, 150, 60, 0};

    explicit StrikeDay(TemperatureUnits units = TemperatureUnits::fahrenheit) {
        settings.temperature_units = units;
        settings.volume_units = settings.weight_units = Units::american;
        settings.grain_water_volume = 1.32F;
        strike_water_form(form, water, settings, nullptr, nullptr);
    }
};

TEST(StrikeWater, IsCutOffToWholeDegrees) {
    StrikeDay day;
    EXPECT_EQ(day.shown_all({"grain", "water", "thermal_mass", "strike"}), "10.00|10.00| 0.00|168");
    day.water.thermal_mass = 0.5F;
    EXPECT_EQ(day.shown("strike"), "184") << "168 + 2 x (0.05 x 168)";
    day.type("wanted", "0");
    EXPECT_EQ(day.water.wanted, 1);
    day.water.quarts = 0;
    EXPECT_EQ(day.shown("strike"), "1") << "without water the mash itself";
    const StrikeDay in_celsius(TemperatureUnits::celsius);
    EXPECT_EQ(in_celsius.shown_all({"wanted", "grain_temperature", "strike"}), " 66| 16|76");
}

TEST(StrikeWater, IsPrintedAsTheSessions) {
    const StrikeDay day;
    EXPECT_THAT(
        printed_lines(strike_water_printout(day.water, day.settings)),
        testing::IsSupersetOf({"Wortlex - Brewing Session Dough In Strike Water Calculation",
                               "Initial Dough In Strike Water Temp Shoud Be\t168.00\tDegrees Fahrenheit",
                               "Total Mash Volume:\t3.30\tGAL\t12.49\tLiters"}));
}

} // namespace
} // namespace wortlex
