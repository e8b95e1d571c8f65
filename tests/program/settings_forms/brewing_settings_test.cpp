#include "program/settings_forms/efficiency_settings.h"
#include "program/settings_forms/hop_settings.h"
#include "program/settings_forms/mash_settings.h"
#include "program/settings_forms/measure_settings.h"
#include "support/form_user.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

// An image, a form on it, and a user.
struct Dialog : FormUser {
    SystemSettings image = WriteDefaultSettings();

    std::string shown(std::string_view key) const {
        return content_of(form, key) + ' ' + row<EntryRow>(key).unit_text();
    }
    std::string spin_down(std::string_view key) { return spin(key, Spin::down); }
};

TEST(MeasureSettings, UnitsChangeWhatIsShownAndNotWhatIsStored) {
    Dialog dialog;
    measure_settings_form(dialog.form, dialog.image);
    const auto sizes = [&dialog] {
        return dialog.shown("batch_size") + ", " + dialog.shown("grain_increment") + ", " +
               dialog.shown("hop_increment");
    };
    EXPECT_EQ(sizes(), "5.00 Gallons, 0.50 Lbs, 0.25 Ounces");
    for (const auto* const units : {"volume_units", "weight_units", "hop_weight_units"})
        dialog.choose(units, 1);
    EXPECT_EQ(sizes(), "18.93 Liters, 0.23 kg, 7.09 Grams");
    dialog.choose("system_mode", 1);
    EXPECT_EQ(sizes(), "0.19 Hectoliters, 0.23 kg, 0.0071 Kilograms");
    EXPECT_EQ(dialog.image.batch_size, 5.0F);
    dialog.type("hop_increment", "0.2835");
    dialog.type("batch_size", "0.2");
    dialog.type("grain_increment", "1");
    EXPECT_NEAR(dialog.image.hop_increment, 10.0, 1e-5);
    EXPECT_NEAR(dialog.image.batch_size, 5.2835625, 1e-6);
    EXPECT_NEAR(dialog.image.grain_increment, 2.204624, 1e-6) << "by 453.592 grams, though shown by 453.6";
    dialog.form.cancel();
    EXPECT_EQ(dialog.image, WriteDefaultSettings());
}

TEST(MeasureSettings, EqualSizesFollowEachOther) {
    Dialog dialog;
    auto& image = dialog.image;
    measure_settings_form(dialog.form, image);
    auto& equal = dialog.row<CheckRow>("wort_equals_batch");
    dialog.type("batch_size", "20000");
    EXPECT_EQ(std::pair(image.batch_size, image.wort_size), std::pair(10000.0F, 10000.0F));
    EXPECT_FALSE(dialog.form.row("wort_size").is_enabled());
    dialog.form.check(equal, false);
    dialog.type("wort_size", "-3");
    dialog.type("batch_size", "0.25");
    EXPECT_EQ(std::pair(image.batch_size, image.wort_size), std::pair(0.25F, 0.0F));
    dialog.form.check(equal, true);
    EXPECT_EQ(std::pair(image.batch_size, image.wort_size), std::pair(0.5F, 0.5F));
    dialog.type("batch_size", "0.25");
    EXPECT_EQ(image.wort_size, 0.25F) << "the floor is of the moment of switching on";
}

TEST(MashSettings, RatiosReachTheImageWithOk) {
    Dialog dialog;
    auto& image = dialog.image;
    image.volume_units = Units::metric;
    mash_settings_form(dialog.form, image);
    EXPECT_EQ(dialog.shown("thick"), "1.36 ");
    dialog.type("medium", "1.6"); // 0.76599 quarts a pound
    dialog.type("heat_capacity", "0.405");
    EXPECT_EQ(image.medium_decoction, 1000);
    dialog.form.accept();
    EXPECT_EQ(image.medium_decoction, 766);
    EXPECT_EQ(image.thick_decoction, 650) << "untouched";
    EXPECT_EQ(image.malt_heat_capacity, 405);
}

TEST(MashSettings, RangesAreOfWhatIsShown) {
    Dialog dialog;
    auto& image = dialog.image;
    mash_settings_form(dialog.form, image);
    image.grain_absorption = 0.0625F;
    EXPECT_EQ(dialog.spin_down("grain_absorption"), "  0.05");
    dialog.type("grain_absorption", "0.01");
    EXPECT_EQ(image.grain_absorption, 0.01F) << "only the arrows end at 0.05";
    dialog.type("cooling_shrink", "0");
    EXPECT_EQ(image.cooling_shrink, 0.01F);
    image.volume_units = Units::metric;
    image.temperature_units = TemperatureUnits::celsius;
    dialog.type("grain_temperature", "-40");
    EXPECT_EQ(std::pair(image.grain_temperature, dialog.shown("grain_temperature")),
              std::pair(-22.0F, std::string("-30.00 C")));
    dialog.type("grain_absorption", "1.682");
    EXPECT_NEAR(image.grain_absorption, 0.2, 1e-7);
    image.grain_water_volume = 0.7925F; // 0.7505 litres
    EXPECT_EQ(dialog.spin_down("grain_water_volume"), "0.7500");
    EXPECT_EQ(dialog.row<EntryRow>("grain_water_volume").label_text(), "&0.95 L Water + 0.45 kg Grain:");
}

TEST(EfficiencySettings, YieldIsFlaggedAndNamed) {
    Dialog dialog;
    auto& image = dialog.image;
    int opened = 0;
    efficiency_settings_form(dialog.form, image, {[&opened] { ++opened; }, {}});
    const auto& yield = dialog.row<ChoiceRow>("potential_display").words.back();
    image.yield_type = YieldType::coarse_as_is;
    EXPECT_EQ(yield(), "As % &Yield - Coarse Grind As Is");
    image.yield_type = static_cast<YieldType>(9); // of a damaged file
    EXPECT_EQ(yield(), "As % &Yield - Coarse Grind As Is");
    dialog.choose("potential_display", 4);
    EXPECT_EQ(image.percent_yield_selected, 1U);
    dialog.choose("potential_display", 3);
    EXPECT_EQ(image.percent_yield_selected, 0U);
    dialog.type("efficiency", "150");
    EXPECT_EQ(image.efficiency, 1.0F);
    dialog.press("advanced");
    EXPECT_EQ(opened, 1);
}

TEST(EfficiencySettings, SucroseIsTakenForPointsAlone) {
    Dialog dialog;
    auto& image = dialog.image;
    image.yield_type = YieldType::fine_as_is;
    advanced_efficiency_form(dialog.form, image);
    dialog.type("sucrose_value", "46.5");
    EXPECT_EQ(image.sucrose_value, 46.5F);
    image.reserved_1324 = 1;
    dialog.type("sucrose_value", "47");
    image.reserved_1324 = 0;
    dialog.choose("gravity_base", 1);
    dialog.type("sucrose_value", "48");
    EXPECT_EQ(image.sucrose_value, 46.5F);
    EXPECT_FALSE(dialog.form.row("sucrose_advice").is_enabled());
    dialog.press("no_potential");
    EXPECT_EQ(image.sucrose_value, 46.21F);
    EXPECT_EQ(std::tuple(image.efficiency_method_setting, image.gravity_base, image.yield_type),
              std::tuple(EfficiencyMethod::method_2, GravityBase::points, YieldType::fine_as_is));
    EXPECT_FALSE(dialog.form.row("yield_type").is_enabled());
    dialog.press("pro_brewer");
    EXPECT_EQ(std::pair(image.efficiency_method_setting, image.yield_type),
              std::pair(EfficiencyMethod::method_1, YieldType::coarse_as_is));
}

TEST(HopSettings, TinsethIsAdjustedAtEachChoice) {
    Dialog dialog, child;
    auto& image = dialog.image;
    int opened = 0;
    hop_settings_form(dialog.form, image, {[&opened] { ++opened; }, {}});
    for (const std::size_t formula : {1U, 2U, 2U, 3U}) dialog.choose("formula", formula);
    EXPECT_EQ(opened, 2) << "once more where it is chosen already";
    tinseth_form(child.form, image);
    for (const auto& [text, factor] :
         {std::pair("0.7", 1.0F), std::pair("1.5", 1.5F), std::pair("9", 2.0F)}) {
        child.type("tinseth_factor", text);
        EXPECT_EQ(image.tinseth_factor, factor) << text;
    }
    dialog.form.cancel();
    auto kept = WriteDefaultSettings();
    kept.tinseth_factor = 2;
    EXPECT_EQ(image, kept) << "but for what the dialog that it opened has accepted";
}

TEST(HopSettings, PercentsKeepTheirRange) {
    Dialog dialog;
    auto& image = dialog.image;
    hop_settings_form(dialog.form, image, {});
    for (const auto& [text, percent] :
         {std::pair("-100", -100), std::pair("-101", -100), std::pair("35", 35)}) {
        dialog.type("first_wort_percent", text);
        EXPECT_EQ(image.first_wort_percent, percent);
    }
    image.mash_hop_percent = -98;
    EXPECT_EQ(dialog.spin_down("mash_hop_percent"), "-100");
    EXPECT_EQ(image.mash_hop_percent, -100);
    EXPECT_FALSE(dialog.form.row("plug_increase").is_enabled());
    dialog.form.check(dialog.row<CheckRow>("use_additional"), true);
    EXPECT_TRUE(dialog.form.row("plug_increase").is_enabled());
    dialog.type("plug_increase", "7.5"); // whole percents alone are shown, so no others are taken
    EXPECT_EQ(image.plug_increase, 0.07F);
}

} // namespace
} // namespace wortlex
