#include "calculators/degradation_chart_printout.h"
#include "calculators/ibu_calculator_printout.h"
#include "documents/brewing.h"
#include "documents/forms/pre_boil_form.h"
#include "mash/strike_calculator_printout.h"
#include "support/recording_desk.h"

#include <gmock/gmock.h>

namespace wortlex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsSupersetOf;

Settings kitchen() {
    auto settings = brewing_settings();
    settings.printer_scale = 1;
    settings.sg_precision = 1;
    return settings;
}

HopCalculator calculation() {
    return {.start_alpha = 5,
            .adjusted_alpha = 4,
            .ounces = 32,
            .grams = 907.2F,
            .wort_volume = 62,
            .batch_volume = 93,
            .sg = 1.0523F,
            .boil_minutes = 75,
            .ibu = 30.5F,
            .is_first_wort = true,
            .factors = {.concentration = 1.5F, .gravity = 1.06F, .utilization = 0.24F}};
}

TEST(IbuPrintout, FollowsFormulaAndUnits) {
    auto settings = kitchen();
    settings.HopFormula = HopFormulaCode::Garetz;
    settings.first_wort_change = -10;
    EXPECT_THAT(
        printed_lines(ibu_calculator_printout(calculation(), "Saaz", settings)),
        ElementsAre("Wortlex IBU Calculator", "@584 Page 1", "Hop Name:\tSaaz", "Ounces Hops Used:\t32.00",
                    "Grams Hops Used:\t907.20", "Beer Filtered :\tNo", "Hop Bags Used :\tNo",
                    "Alpha:\t5.00\tAdjusted Alpha:\t4.00", "", "Batch Size (Gal):\t93.00",
                    "Wort Size (Gal):\t62.00\tConcentration Factor:\t1.50",
                    "Wort SG:\t1.0523\tGravity Factor:\t1.06", "Boil Time :\t75\tUtilization Factor :\t0.24",
                    "", "The IBU Level obtained will be approx. 30.50  IBU's", "HBU's:  128.00",
                    "MBU's:  3628.80", "", "Hop IBU Formula Used:\tGaretz", "Used as First Wort Hop",
                    "FWH Utilization Decrease Setting: -10%"));
    settings.HopFormula = HopFormulaCode::Tinseth;
    settings.system_mode = SystemMode::pro_brewer;
    settings.mash_hop_change = 20;
    auto mash_hop = calculation();
    mash_hop.is_first_wort = false;
    mash_hop.is_mash_hop = true;
    EXPECT_THAT(
        printed_lines(ibu_calculator_printout(mash_hop, "Saaz", settings)),
        IsSupersetOf({"Pounds Hops Used:\t2.00", "Kilograms Hops Used:\t0.91", "Batch Size (bbl):\t3.00",
                      "Wort Size (bbl):\t2.00", "Av. Wort SG:\t1.0523\tGravity Factor:\t1.06",
                      "Used as Mash Hop", "MH Utilization Decrease Setting: 20%"}));
}

TEST(DegradationPrintout, PlacesTheChartInTheMiddleOfItsPage) {
    RecordingPageDesk desk;
    desk.show(degradation_printout({.name = "Saaz", .start_alpha = 5, .months = 6}, 1));
    // 640 / 445 to the unit, 320 / 506 of that to the pixel: 454.8 of 640 dots wide; 460 of 887 dots high.
    EXPECT_EQ(texts_on(desk.jobs.front(), 0).front(), "336 @106 Wortlex Hop Time/Alpha Degradation Chart")
        << "16 and 12 pixels in";
    EXPECT_THAT(calls_on(desk.jobs.front(), 0), Contains(HasSubstr("[136] Hop Name:\tSaaz"))) << "150 wide";
}

TEST(StrikePrintout, TellsBothUnits) {
    auto settings = kitchen();
    settings.tun_thermal_mass = 0.15F;
    settings.grain_temperature = 68;
    settings.grain_water_volume = 1.32F;
    auto calculator = new_strike_calculator(settings);
    open_strike_calculator(calculator, settings);
    calculator.strike.fahrenheit = 170;
    EXPECT_THAT(printed_lines(strike_calculator_printout(calculator, settings)),
                ElementsAre("Wortlex - Dough In Strike Water Calculation", "@584 Page 1",
                            "Tun Thermal Mass:\t0.150", "Total Grain:\t10.00\tLBS\t4.54\tkg",
                            "Total Water:\t12.00\tQTS\t11.36\tLiters", "Water/Grain Ratio:\t1.20\t\t2.50\t",
                            "Desired Mash Temp:\t155.00\tF\t68.33\tC", "Grain Temp:\t68.00\tF\t20.00\tC",
                            "Initial Dough In Strike Water Temp Shoud Be\t170.00\tDegrees Fahrenheit",
                            "\t76.67\tDegrees Celsius", "Total Mash Volume:\t3.80\tGAL\t14.38\tLiters"));
    settings.system_mode = SystemMode::pro_brewer;
    calculator.grain = of_pounds(0);
    work_out_strike(calculator);
    EXPECT_THAT(
        printed_lines(strike_calculator_printout(calculator, settings)),
        IsSupersetOf({"Total Water:\t3.00\tGAL\t11.36\tLiters", "Water/Grain Ratio:\t0.00\t\t0.00\t"}));
}

TEST(PreBoilPrintout, TellsBothKettlesInTheUnitsShown) {
    auto settings = kitchen();
    settings.wort_equals_batch = 1;
    settings.evaporation_by_volume = 1;
    settings.plato_precision = 0;
    BrewDocument recipe;
    recipe.title.assign("K\xF6lsch");
    recipe.wort_size = recipe.batch_size = 6;
    recipe.og_points = 48;
    recipe.boil_minutes = 90;
    // Three gallons go off in an hour and a half: 48 x 6 / 9 points are 32.
    const PreBoilSubject boil{recipe, [] { return 2.0F; }, settings};
    EXPECT_THAT(printed_lines(pre_boil_printout(boil)),
                ElementsAre("Wortlex Pre-Boil Calculator", "@584 Page 1", "Recipe:\tK\u00F6lsch",
                            "End-Of-Boil Wort Size:\t6.00\tGal",
                            "End-Of-Boil Gravity:\t1.0480\tSG\t11.9\tPlato", "Boil Time:\t90\tMinutes",
                            "Evaporation Rate:\t2.00\tGal Per Hour", "Raw Pre-Boil Wort Size:\t9.00\tGal",
                            "Raw Pre-Boil Gravity:\t1.0320\tSG\t8.0\tPlato"));
    const WaterNeeds planned{.mash_water = 8}; // 288 points in 8 gallons are 36 in each
    settings.volume_units = Units::metric;
    EXPECT_THAT(printed_lines(pre_boil_printout({recipe, boil.rate, settings, &planned})),
                IsSupersetOf({"Evaporation Rate:\t7.57\tL Per Hour", "Pre-Boil Wort Size:\t30.28\tL",
                              "Pre-Boil Gravity:\t1.0360\tSG\t9.0\tPlato"}));
}

} // namespace
} // namespace wortlex
