#include "calculators/calculator_states.h"
#include "support/form_user.h"
#include "support/recording_desk.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace wortlex {
namespace {

Settings tool_settings(SystemMode mode = SystemMode::home_brewer) {
    auto image = WriteDefaultSettings();
    image.system_mode = mode;
    return settings_from(image);
}

// A tool with its form.
template <class Tool>
struct OpenedTool : FormUser {
    Settings settings;
    Tool tool;
    explicit OpenedTool(Tool begins = {}, SystemMode mode = SystemMode::home_brewer)
        : settings(tool_settings(mode)), tool(std::move(begins)) {}
};

TEST(HydrometerTool, CorrectsWhatWasReadInWarmWort) {
    OpenedTool<HydrometerTool> user;
    open_hydrometer(user.tool, user.settings);
    hydrometer_form(user.form, user.tool, user.settings);
    EXPECT_EQ(user.shown_all({"temperature_celsius", "corrected_sg", "corrected_plato"}), "15.00|1.050|12.4");
    user.type("temperature_fahrenheit", "100");
    EXPECT_EQ(user.shown_all({"temperature_celsius", "corrected_sg", "corrected_plato"}), "37.78|1.056|13.8");
    user.type("current_plato", "5");
    EXPECT_EQ(user.shown_all({"current_sg", "corrected_sg"}), "1.020|1.026");
    EXPECT_THAT(printed_lines(hydrometer_printout(user.tool, user.settings)),
                testing::Contains("Current Temperature:\t100.00 F\t37.78 C"));
    const auto twin = hydrometer_for(1.04F, user.settings);
    EXPECT_EQ(corrected_reading(twin).sg, 1.04F) << "at the calibration temperature";
}

struct OpenedRefractometer : OpenedTool<RefractometerTool> {
    explicit OpenedRefractometer(RefractometerKind kind)
        : OpenedTool(new_refractometer_tools().at(static_cast<std::size_t>(kind))) {
        open_refractometer(tool, settings);
        refractometer_form(form, tool, settings);
    }
    void calibrate(float SystemSettings::*value, float reading, CalibrationChange change) {
        settings.*value = reading;
        take_calibration(tool, change, settings);
    }
};

TEST(RefractometerTool, RawWortFollowsAnyScale) {
    OpenedRefractometer user(RefractometerKind::raw_wort);
    EXPECT_EQ(user.shown_all({"brix", "gravity_sg", "gravity_plato"}), "2.66|1.01000|2.560");
    user.type("brix", "13");
    EXPECT_EQ(user.shown_all({"zeiss", "ri", "gravity_plato"}), "66.36|1.35256|12.500");
    user.type("zeiss", "50");
    EXPECT_EQ(user.shown_all({"brix", "ri", "net_zeiss"}), "9.10|1.34650|35.50");
    user.type("zeiss", "10");
    EXPECT_EQ(user.shown_all({"net_brix", "net_zeiss"}), "0.00|0.00") << "below water";
    user.type("ri", "1.3");
    EXPECT_EQ(user.shown_all({"brix", "zeiss", "gravity_plato"}), "0.00|14.50|0.000") << "below water";
    user.settings.water_zeiss = 1000;
    user.type("zeiss", "1");
    EXPECT_EQ(user.shown_all({"brix", "ri", "net_ri", "gravity_sg", "gravity_plato"}), "--|--|--|--|--");
}

TEST(RefractometerTool, NoticesOfTheCalibrationKeepTheirOwnWays) {
    OpenedRefractometer user(RefractometerKind::fermentation);
    EXPECT_EQ(user.shown_all({"zeiss", "gravity_sg"}), "45.50|1.02035");
    user.calibrate(&SystemSettings::water_zeiss, 15, CalibrationChange::water_zeiss);
    EXPECT_EQ(user.shown_all({"brix", "zeiss", "net_zeiss", "gravity_sg"}), "8.00|46.00|31.00|1.02035");
    user.calibrate(&SystemSettings::water_zeiss, 14.5F, CalibrationChange::factor);
    EXPECT_EQ(user.shown_all({"zeiss", "net_zeiss"}), "46.00|31.50") << "only the results follow";
    user.calibrate(&SystemSettings::water_brix, 0.5F, CalibrationChange::water_brix);
    EXPECT_EQ(user.shown_all({"brix", "net_brix", "zeiss"}), "8.50|8.00|46.00") << "from its index";
    user.calibrate(&SystemSettings::water_brix, 0, CalibrationChange::water_brix);
    user.type("known_plato", "15");
    EXPECT_EQ(user.shown("known_sg"), "1.061");
}

TEST(RefractometerTool, TemporaryCalibrationTellsEachChangeAndCancelRestoresIt) {
    OpenedTool<int> user;
    std::vector<CalibrationChange> told;
    refractometer_calibration_form(user.form, user.settings,
                                   [&](CalibrationChange change) { told.push_back(change); });
    user.type("water_brix", "-0.3");
    user.type("water_ri", "1.3331");
    user.type("factor", "1.05");
    user.type("factor", "2.5");
    EXPECT_EQ(user.settings.brix_correction, 2) << "held within its range";
    user.form.cancel();
    EXPECT_EQ(std::tuple(user.settings.water_brix, user.settings.water_ri, user.settings.brix_correction),
              std::tuple(0.0F, 1.33299F, 1.04F));
    using enum CalibrationChange;
    EXPECT_EQ(told, (std::vector{water_brix, water_ri, factor, factor, factor}));
}

TEST(RefractometerTool, AlcoholFromReadingAndHydrometer) {
    OpenedRefractometer user(RefractometerKind::alcohol);
    user.type("known_sg", "1.012");
    user.type("zeiss", "39"); // 24.5 net
    EXPECT_EQ(user.shown_all({"by_weight", "by_volume", "original_plato", "residual_plato"}),
              "3.59|4.59|11.664|4.697");
    user.type("zeiss", "15");
    EXPECT_EQ(user.shown_all({"by_weight", "by_volume", "original_plato", "adf"}), "0.00|0.00|0.000|0.00");
    EXPECT_NE(user.shown("residual_plato"), "0.000");
    const auto lines = printed_lines(refractometer_printout(
        user.tool, RefractometerUse::alcohol, PrintedSession{"Porter", "03-05-2001"}, user.settings));
    EXPECT_THAT(lines, testing::IsSupersetOf({"From A Wortlex Brewing Session:", "Porter",
                                              "Reading\t\tNet Units", "15.00\tZeiss\t0.50\tZeiss",
                                              "Calculated Residual Extract", "1.01200\tSG\t3.068\tPlato"}));
}

TEST(RefractometerTool, ASessionsToolsOpenFromWhatIsStored) {
    const auto settings = tool_settings();
    const auto stored = finishing_tool(12.387F, 5.17F, {.plato = 5.168F, .net_zeiss = 31}, settings);
    EXPECT_FLOAT_EQ(pair_of(stored, settings).net_zeiss, 31);
    const auto searched = finishing_tool(12.387F, 3.067F, {.plato = 5.168F, .net_zeiss = 31}, settings);
    EXPECT_NEAR(pair_of(searched, settings).plato, 3.067, 0.005);
    const auto alcohol = alcohol_tool(12.387F, 3.067F, {}, settings);
    EXPECT_NEAR(alcohol_reading_of(alcohol, settings).original_extract, 12.387, 0.005);
    const auto entered = alcohol_tool(0, 0, {24.5F, 11.66F, 3.067F}, settings);
    EXPECT_EQ(alcohol_reading_of(entered, settings).net_zeiss, 24.5F);
    EXPECT_FLOAT_EQ(raw_wort_tool(1.05F, settings).reading.brix, 12.387F * 1.04F);
}

TEST(AlcoholCalculator, FollowsBothScales) {
    OpenedTool<AlcoholCalculator> user;
    alcohol_form(user.form, user.tool, user.settings);
    EXPECT_EQ(user.shown_all({"by_weight", "by_volume", "adf", "rdf", "residual_plato"}),
              "4.12|5.26|79.33|65.87|4.4");
    user.type("og_plato", "140");
    EXPECT_EQ(user.tool.og.plato, 130) << "held within its range";
    user.type("og_sg", "1.01");
    EXPECT_EQ(user.shown_all({"og_plato", "by_weight", "adf"}), " 2.6|0.00|0.00");
    EXPECT_THAT(printed_lines(alcohol_printout(user.tool, user.settings)),
                testing::IsSupersetOf({"Measured OG:\t   1.010\tPlato: 2.6", "% ADF:\t    0.00"}));
}

TEST(DilutionCalculator, ThinsAndBlends) {
    OpenedTool<DilutionCalculator> user({}, SystemMode::pro_brewer);
    StateActions actions;
    actions.correct = [](float sg) { return sg == 1.05F ? std::optional(1.06F) : std::nullopt; };
    dilution_form(user.form, user.tool, user.settings, actions);
    EXPECT_EQ(user.shown_all({"diluted_sg", "blended_sg"}), "1.042|1.042");
    user.type("wort_gallons", "2");
    EXPECT_EQ(user.shown_all({"wort_litres", "diluted_gallons"}), "2.35|2.03") << "2 barrels in hectolitres";
    user.type("water_litres", "1");
    EXPECT_FLOAT_EQ(user.tool.water.gallons, 26.4178125F);
    user.press("gravity_hydrometer");
    EXPECT_EQ(user.shown_all({"gravity_sg", "gravity_plato"}), "1.060|14.7");
    user.press("gravity_hydrometer");
    EXPECT_EQ(user.shown("gravity_sg"), "1.060") << "left without a correction";
    EXPECT_THAT(printed_lines(dilution_printout(user.tool, user.settings)),
                testing::Contains("Wort Volume Before Dilution (BBL):\t2.00\tHectoliters:\t2.35"));
    for (const auto* const key : {"wort_gallons", "water_gallons", "first_gallons", "second_gallons"})
        user.type(key, "0");
    EXPECT_EQ(user.shown_all({"diluted_sg", "diluted_gallons"}), "1.060|0.00");
}

struct OpenedBoilOff : OpenedTool<BoilOffCalculator> {
    OpenedBoilOff() { boil_off_form(form, tool, settings); }
    std::string after() const { return shown_all({"evaporated_gallons", "after_gallons", "after_sg"}); }
};

TEST(BoilOffCalculator, GoesByPercentByVolumeOrAsEntered) {
    OpenedBoilOff user;
    EXPECT_EQ(user.shown_all({"percent_per_hour", "volume_per_hour", "litres_per_hour"}), "20.00|1.00|3.79");
    EXPECT_EQ(user.shown_all({"after_gallons", "after_litres", "after_sg"}), "4.00|15.14|1.062");
    user.type("wort_gallons", "10");
    user.type("minutes", "90");
    EXPECT_EQ(user.shown("after_gallons"), "7.00") << "90 / 60 x 20 % of 10";
    user.choose("method", 1);
    EXPECT_EQ(user.shown("after_gallons"), "8.50") << "90 / 60 x 1";
    EXPECT_FALSE(user.can("evaporated_gallons"));
    user.choose("method", 2);
    EXPECT_EQ(user.after(), "1.50|8.50|1.059");
    user.type("evaporated_litres", "50");
    EXPECT_EQ(user.after(), "10.00|0.00|0.000") << "no more than there is";
    user.type("final_gallons", "7");
    EXPECT_EQ(user.shown_all({"final_gallons", "volume_per_hour"}), "5.00|0.00")
        << "no more than at the start";
}

TEST(BoilOffCalculator, ShowsNoRateOfNothing) {
    OpenedBoilOff user;
    user.type("start_gallons", "0");
    EXPECT_EQ(user.shown_all({"percent_per_hour", "after_gallons", "after_sg", "after_plato"}),
              "--|--|--|--");
    user.choose("method", 2);
    EXPECT_EQ(user.after(), "1.00|4.00|1.062") << "begins with what was known last";
    user.type("rate_minutes", "0");
    EXPECT_EQ(user.tool.rate_minutes, 1);
}

TEST(CalculatorStates, SaveTheirDefaultsAndRefuseWhatIsNoNumber) {
    TemporaryFolder folder;
    ScriptedPrompts prompts;
    BoilOffCalculator boil_off;
    boil_off.minutes = 75;
    boil_off.rate_final = of_gallons(4.5F);
    boil_off.method = BoilOffMethod::volume_per_hour;
    settle_boil_off(boil_off);
    EXPECT_TRUE(SaveBoilOff(folder.path(), boil_off, prompts));
    BoilOffCalculator read;
    LoadBoilOff(folder.path(), read);
    EXPECT_EQ(boil_off_bytes(read), boil_off_bytes(boil_off));
    EXPECT_EQ(boil_off_bytes(read).size(), 29U);

    DilutionCalculator dilution;
    const auto untouched = dilution_bytes(dilution);
    auto file = untouched;
    put_little_endian(1.5F, &file[8]);
    EXPECT_TRUE(read_dilution(ByteView(file).first(13), dilution));
    EXPECT_EQ(std::pair(dilution.water.gallons, dilution.first.gallons), std::pair(1.5F, 5.0F))
        << "a short one";
    put_little_endian(std::numeric_limits<float>::quiet_NaN(), &file[24]);
    EXPECT_FALSE(read_dilution(file, dilution));
    EXPECT_EQ(dilution.second_gravity.sg, 1);

    std::filesystem::create_directory(folder.path() + "dilute.wxs");
    prompts.expect_write_error();
    EXPECT_FALSE(SaveDilution(folder.path(), dilution, prompts));
}

TEST(CarbonationCalculator, PrimesWithSugarOrMaltExtract) {
    OpenedTool<CarbonationCalculator> user;
    carbonation_form(user.form, user.tool, user.settings);
    EXPECT_EQ(user.shown_all({"ounces", "grams", "pounds", "kilograms"}), "4.39|124.49|0.27|0.12");
    EXPECT_EQ(user.shown_all({"psi", "kpa"}), "13.31|91.79");
    user.choose("medium", 1);
    EXPECT_EQ(user.shown_all({"ounces", "grams", "psi"}), "8.78|248.97|13.31");
    user.type("beer_litres", "38");
    user.type("fermentation_celsius", "-5");
    EXPECT_EQ(user.shown_all({"beer_gallons", "fermentation_fahrenheit"}), "10.04|23.00");
    EXPECT_THAT(printed_lines(carbonation_printout(user.tool, user.settings)),
                testing::IsSupersetOf({"Amount of Beer:\t10.04 Gallons\t38.00 Liters", "DME Scalar:\t2.00"}));
    user.type("beer_gallons", "0");
    EXPECT_EQ(user.shown("grams"), "0.00");
}

TEST(UnitConverter, TheTypedFieldKeepsItsTextAndTheOthersAreNudged) {
    OpenedTool<UnitConverter> user;
    unit_converter_form(user.form, user.tool, user.settings);
    user.type("us_gallons", "1");
    EXPECT_EQ(user.shown_all({"us_ounces", "us_liter", "us_milliliter"}), "128.00|3.78|3785.30");
    user.type("us_liter", "1");
    EXPECT_EQ(user.shown_all({"us_ounces", "us_gallons", "us_liter"}), "33.81|0.26|1.00");
    user.type("us_barrels", "100000");
    EXPECT_EQ(user.shown("us_ounces"), "396800000.00");
    user.type("fahrenheit", "212");
    EXPECT_EQ(user.shown_all({"celsius", "kelvin", "reaumur", "rankine"}), "100.00|373.15|80.00|671.67");
    user.type("celsius", "-40");
    EXPECT_EQ(user.shown_all({"fahrenheit", "plato", "kpa"}), "-39.99| 0.0|6.89") << "nudged towards zero";
    const auto lines = printed_lines(unit_converter_printout(user.tool, user.settings));
    EXPECT_THAT(lines,
                testing::IsSupersetOf({"Celcius\t-39.99", "PSI\t1.000\tkPa\t6.89", "SG\t1.000\tPlato\t0.0"}));
    user.press("reset");
    EXPECT_EQ(user.shown_all({"us_ounces", "fahrenheit", "celsius"}), "0.00|60.00|15.55");
}

} // namespace
} // namespace wortlex
