#include "mash/mash_designer_form.h"
#include "mash/mash_designer_printout.h"
#include "mash/schedule_storing.h"
#include "support/form_user.h"
#include "support/recording_desk.h"
#include "support/scripted_user.h"

#include "base/number.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace wortlex {
namespace {

Settings mash_kitchen(Units units = Units::american,
                      TemperatureUnits degrees = TemperatureUnits::fahrenheit) {
    Settings settings;
    settings.volume_units = settings.weight_units = units;
    settings.temperature_units = degrees;
    settings.grain_temperature = 70.9F;
    settings.grain_water_volume = 1.32F;
    settings.quarts_per_pound = 1;
    settings.heat_capacity = 0.4F;
    settings.thick_ratio = 0.65F;
    settings.medium_ratio = 1;
    settings.thin_ratio = 1.5F;
    settings.printer_scale = 1;
    return settings;
}

// A brewer at the designer, who says what each new step is to be.
struct Designing : FormUser {
    MashDesigner designer;
    std::optional<StepNaming> naming;
    StepNaming offered;

    explicit Designing(const Settings& settings) : designer(free_designer(settings)) { show(); }
    explicit Designing(MashDesigner of_document) : designer(std::move(of_document)) { show(); }

    void show() {
        const auto ask = [this](const StepNaming& offer, bool) {
            offered = offer;
            return naming;
        };
        mash_designer_form(form, designer, {.ask_naming = ask});
    }
    void add(const char* name, StepHeat heat = StepHeat::infuse) {
        naming = {name, heat, 0x112233, 0x445566};
        press("new_step");
    }
    /// With the figures of the pane as they are typed, one behind the other.
    void add(const char* name, StepHeat heat,
             std::initializer_list<std::pair<const char*, const char*>> typed) {
        add(name, heat);
        for (const auto& [key, text] : typed) type(key, text);
    }
    std::string line(std::size_t step) const { return cells("steps", step); }
    std::string title(std::size_t column) const { return row<ListRow>("steps").columns[column].caption(); }
    std::string greyed(std::string_view key) const { return content_of(form, key); }
    void select(std::int32_t step) { form.select(row<ListRow>("steps"), step); }
    std::size_t count() const { return row<ListRow>("steps").count(); }
};

TEST(MashDesigner, WorksOutAStepInfusion) {
    Designing brewer(mash_kitchen());
    brewer.type("grain", "8");
    brewer.type("ratio", "1");
    brewer.add("Acid Rest", StepHeat::direct, {{"start_temp", "104"}, {"rest_time", "20"}});
    brewer.add("Held", StepHeat::direct);
    EXPECT_EQ(brewer.greyed("infuse_temp"), "0") << "nothing is infused";
    brewer.press("delete_step");
    brewer.add("Beta Rest", StepHeat::infuse, {{"start_temp", "140"}, {"rest_time", "40"}});
    brewer.add("Alpha Rest", StepHeat::infuse, {{"start_temp", "158"}, {"rest_time", "40"}});
    EXPECT_EQ(brewer.line(0), "Acid Rest|5|20|104|104|Infuse|110|8.00|1.00") << "0.2 x 34 + 104, cut";
    EXPECT_EQ(brewer.line(1), "Beta Rest|5|40|140|140|Infuse|210|4.94|1.62") << "36 x 9.6 / 70; 12.94 / 8";
    EXPECT_EQ(brewer.line(2), "Alpha Rest|5|40|158|158|Infuse|210|5.03|2.25") << "18 x 14.537 / 52";
    EXPECT_EQ(brewer.shown("total_volume"), "5.13") << "8 x (1.32 + 2.246 - 1) / 4";
    brewer.select(0);
    EXPECT_FALSE(brewer.can("infuse_temp"));
    EXPECT_EQ(brewer.greyed("infuse_temp"), "110") << "worked out";
    brewer.type("grain", "10");
    EXPECT_EQ(brewer.shown_all({"dough_in", "ratio"}), "8.00|0.80") << "the water stays";
    brewer.type("ratio", "1.25");
    EXPECT_EQ(brewer.shown("dough_in"), "12.50");
}

TEST(MashDesigner, WorksOutDecoctionsOfAnyThickness) {
    Designing brewer(mash_kitchen());
    brewer.add("Dough In", StepHeat::infuse, {{"start_temp", "150"}, {"rest_time", "20"}});
    brewer.add("Mash Out", StepHeat::decoction, {{"infuse_temp", "210"}, {"start_temp", "168"}});
    EXPECT_EQ(brewer.line(1), "Mash Out|5|30|168|168|Decoc|210|3.97|-----")
        << "as thick as the mash: 10 / 10";
    EXPECT_EQ(brewer.title(1) + brewer.title(6) + brewer.title(7), "Pull TimeDecoc TempDecoc Amount");
    brewer.press("thick");
    EXPECT_EQ(brewer.row<ListRow>("steps").cell(1, 7), "4.12");
    EXPECT_EQ(brewer.shown("thickness"), "0.65");
    brewer.type("step_time", "26");
    EXPECT_EQ(brewer.shown("step_time"), "25") << "20 minutes of the rest before, and 5";
    brewer.type("start_temp", "149");
    EXPECT_EQ(brewer.row<ListRow>("steps").cell(1, 7), "0.00") << "no warmer: nothing is pulled";
    brewer.select(0);
    EXPECT_EQ(brewer.title(1) + brewer.title(6) + brewer.title(7), "Step TimeInfuse TempInfuse Amount");
    EXPECT_FALSE(brewer.can("thickness") || brewer.can("thick"));
    EXPECT_EQ(brewer.greyed("thickness"), "0.00");
    brewer.type("step_time", "600");
    EXPECT_EQ(brewer.shown("step_time"), "5") << "beyond 500 is left alone";
}

TEST(MashDesigner, ShowsAThicknessOfLitresByTwoFactors) {
    Designing brewer(mash_kitchen(Units::metric));
    brewer.add("Dough In");
    brewer.add("Decoction", StepHeat::decoction);
    brewer.press("medium");
    EXPECT_EQ(brewer.shown("thickness"), "2.09") << "1 x 2.088";
    brewer.press("thin");
    EXPECT_EQ(brewer.shown("thickness"), "3.13") << "1.5 x 2.088";
    brewer.select(0);
    brewer.select(1);
    EXPECT_EQ(brewer.shown("thickness"), "3.14") << "1.5 / 0.4784";
    brewer.type("thickness", "2.088");
    EXPECT_FLOAT_EQ(brewer.designer.design.mash.steps[1].ratio, 1);
    brewer.choose("volume_units", 0);
    EXPECT_EQ(brewer.shown("thickness"), "1.00") << "as stored";
}

TEST(MashDesigner, AddsAndDeletesWithinTheList) {
    Designing brewer(mash_kitchen());
    EXPECT_FALSE(brewer.can("start_temp") || brewer.can("delete_step"));
    brewer.naming = std::nullopt;
    brewer.press("new_step");
    brewer.add("");
    EXPECT_EQ(brewer.count(), 0U) << "left, and without a name";
    brewer.add("A", StepHeat::decoction);
    EXPECT_EQ(brewer.line(0), "A|5|30|100|100|Infuse|106|10.00|1.00") << "the first is the dough-in";
    brewer.add("C", StepHeat::direct);
    brewer.type("stop_temp", "120");
    brewer.select(0);
    brewer.add("B", StepHeat::direct);
    EXPECT_EQ(brewer.offered.rest_colour, 0x445566U) << "as the selected step has them";
    EXPECT_EQ(brewer.line(1), "B|5|30|100|100|Direct|--|--|--");
    EXPECT_EQ(brewer.line(2), "C|5|30|100|120|Direct|--|--|--");
    brewer.select(0);
    brewer.press("delete_step");
    EXPECT_EQ(brewer.line(0), "B|5|30|100|100|Infuse|106|10.00|1.00") << "promoted";
    EXPECT_EQ(brewer.designer.design.mash.steps[2], MashStep()) << "the freed slot is cleared";
    brewer.press("delete_step");
    brewer.press("delete_step");
    EXPECT_EQ(brewer.shown("total_volume"), "3.30") << "10 x 1.32 / 4: the dough-in alone";
    for (int step = 0; step < 60; ++step) brewer.add("Many", StepHeat::direct);
    EXPECT_EQ(brewer.count(), 49U);
    EXPECT_FALSE(brewer.can("new_step"));
}

TEST(MashDesigner, ChangesATypeByName) {
    Designing brewer(mash_kitchen());
    brewer.add("Dough In");
    brewer.add("Rest", StepHeat::direct);
    brewer.naming = {"Pull", StepHeat::decoction, 1, 2};
    brewer.row<ListRow>("steps").activate();
    EXPECT_EQ(brewer.offered.name, "Rest");
    const auto& step = brewer.designer.design.mash.steps[1];
    EXPECT_EQ((std::tuple{step.name.view(), step.heat_type, step.ratio, step.rest_colour}),
              (std::tuple{std::string_view("Pull"), StepHeat::decoction, 1.0F, 2U}));
    brewer.select(0);
    brewer.row<ListRow>("steps").activate();
    EXPECT_EQ(brewer.designer.design.mash.steps[0].heat_type, StepHeat::infuse) << "whatever is asked for";
}

TEST(MashDesigner, RoundsCelsiusInADocumentOnly) {
    const auto settings = mash_kitchen(Units::american, TemperatureUnits::celsius);
    Designing free(settings);
    free.add("Dough In");
    const MashOwner recipe{.side = DesignerSide::recipe, .grain = [] { return 10.0F; }};
    Designing of_recipe(document_designer(free.designer.design, 0, recipe, settings));
    for (auto* const brewer : {&free, &of_recipe}) brewer->type("start_temp", "65");
    EXPECT_EQ(free.designer.design.mash.steps[0].start_temperature, 149);
    EXPECT_EQ(of_recipe.designer.design.mash.steps[0].start_temperature, 149);
    for (auto* const brewer : {&free, &of_recipe}) brewer->type("start_temp", "0");
    EXPECT_EQ(free.designer.design.mash.steps[0].start_temperature, 32);
    EXPECT_EQ(of_recipe.designer.design.mash.steps[0].start_temperature, 0) << "no temperature at all";
}

TEST(MashDesigner, TakesTheWaterOfADocumentFromItsRatio) {
    float grain = 10;
    std::pair<float, float> told; // quarts, ratio
    const auto open = [&](float water, float ratio, Units units = Units::american) {
        MashOwner owner{.side = DesignerSide::recipe, .grain = [&grain] { return grain; }};
        owner.told = [&told](const MashDesign& design, float by) { told = {design.dough_in_water, by}; };
        auto settings = mash_kitchen(units);
        settings.quarts_per_pound = 1.25F;
        settings.tun_thermal_mass = 0.3F;
        return document_designer({{}, 0, water}, ratio, owner, settings);
    };
    using Told = std::pair<float, float>;
    auto designer = open(15, 0);
    EXPECT_EQ(told, (Told{15, 1.5F})) << "the water gives the ratio";
    EXPECT_EQ(designer.design.mash.grain_temperature, 70);
    EXPECT_EQ(designer.design.mash.tun_thermal_mass, 0.3F);
    open(0, 0);
    EXPECT_EQ(told, (Told{12.5F, 1.25F})) << "the usual ratio";
    open(15, 2);
    EXPECT_EQ(told, (Told{20, 2}));
    open(0, 1.25F, Units::metric);
    EXPECT_FLOAT_EQ(told.first, 12.5151703F) << "4.536 kg x 1.25 x 2.0888 x 33.8148 / 32";
    open(12.3F, narrow(12.3F / 10.0), Units::metric);
    EXPECT_EQ(told.first, 12.3F) << "which has that ratio already";
    designer = open(15, 0);
    grain = 20;
    follow_grain(designer);
    EXPECT_EQ(told, (Told{30, 1.5F}));
    set_dough_in(designer, 0);
    EXPECT_EQ(designer.ratio, 0);
}

TEST(MashDesigner, UndoesWholeEditsAndRedoesThem) {
    Designing brewer(mash_kitchen());
    brewer.add("Dough In");
    brewer.type("start_temp", "1");
    brewer.type("start_temp", "15");
    brewer.type("start_temp", "150");
    brewer.form.leave();
    brewer.type("start_temp", "152");
    undo(brewer.designer);
    EXPECT_EQ(brewer.shown("start_temp"), "150");
    undo(brewer.designer);
    EXPECT_EQ(brewer.shown("start_temp"), "100") << "what was typed in one go";
    redo(brewer.designer);
    EXPECT_EQ(brewer.line(0), "Dough In|5|30|150|150|Infuse|166|10.00|1.00") << "0.2 x 80 + 150";
    undo(brewer.designer);
    undo(brewer.designer);
    EXPECT_EQ(brewer.count(), 0U);
    EXPECT_FALSE(undo(brewer.designer));
}

TEST(MashDesigner, PrintsInTheUnitsOfItsWindow) {
    const auto printed = [](const MashDesigner& designer) {
        return printed_lines(mash_designer_printout(designer), {4, 10});
    };
    auto settings = mash_kitchen();
    Designing brewer(settings);
    brewer.type("mash_name", "Bock");
    brewer.type("ratio", "1.75");
    brewer.add("Dough In", StepHeat::infuse, {{"start_temp", "144"}, {"stop_temp", "143"}});
    brewer.add("Malt", StepHeat::decoction, {{"start_temp", "160"}, {"step_time", "20"}});
    brewer.press("thick");
    brewer.add("Hold", StepHeat::direct);
    EXPECT_THAT(printed(brewer.designer),
                testing::IsSupersetOf(
                    {"Wortlex Detailed Mash Schedule", "Mash Name:\tBock", "Total Grain Lbs:\t10.00",
                     "Total Water Qts:\t17.50\t- Before Additional Infusions", "Grain Temp:\t70.00 F",
                     "Tun Thermal Mass:\t 0.00", "\tStep\tRest\tStart\tStop\tHeat\tInfuse\tInfuse\tInfuse",
                     "Step Name\tTime\tTime\tTemp\tTemp\tType\tTemp\tAmount\tRatio\t",
                     "Dough In\t5\t30\t144\t143\tInfuse\t152\t17.50\t1.75",
                     "Malt\t20\t30\t160\t160\tDecoc\t212\t5.51\t0.65 (Decoc Thickness)",
                     "Hold\t5\t30\t160\t160\tDirect\t---\t-----\t----",
                     "Total Water Qts:\t 17.50\t- After Additional Infusions",
                     "Total Mash Volume Gal:\t  5.18\t- After Additional Infusions",
                     "All Step/Rest temperatures are in degrees Fahrenheit",
                     "All Infusion amounts are in Quarts.", "All Infusion ratios are Quarts/Lbs."}))
        << "17 x 40.469 / (69 x 1.8088) quarts";
    brewer.choose("volume_units", 1);
    brewer.choose("temperature_units", 1);
    EXPECT_THAT(printed(brewer.designer),
                testing::IsSupersetOf(
                    {"Total Grain kg:\t4.54", "Total Water L:\t16.56\t- Before Additional Infusions",
                     "Grain Temp:\t21.00 C", "Malt\t20\t30\t71\t71\tDecoc\t100\t5.22\t1.36 (Decoc Thickness)",
                     "Total Mash Volume L:\t 19.59\t- After Additional Infusions",
                     "All Step/Rest temperatures are in degrees Celsius",
                     "All Infusion amounts are in Liters.", "All Infusion ratios are in Liters/Kilograms."}));
    settings.system_mode = SystemMode::pro_brewer;
    EXPECT_THAT(printed(free_designer(settings)),
                testing::IsSupersetOf({"Total Water Gal:\t300.00\t- Before Additional Infusions",
                                       "Total Mash Volume bbl:\t 12.77\t- After Additional Infusions",
                                       "All Infusion amounts are in Gallons."}));
}

struct Shelf : ScriptedUser {
    ScheduleDesk desk() { return {files, folders, prompts}; }
};

TEST(MashDesigner, OffersWhatARunLeftUnsaved) {
    Shelf shelf;
    const auto& folder = shelf.folder.path();
    constexpr const char* question =
        "A mash schedule was left before it was saved.\nDo you want to go on with "
        "it? No discards it, Cancel asks again the next time.";
    Designing brewer(mash_kitchen());
    EXPECT_TRUE(keep_schedule(brewer.designer, folder) && !is_schedule_kept(folder));
    brewer.add("Dough In");
    EXPECT_TRUE(keep_schedule(brewer.designer, folder));
    Designing next(mash_kitchen());
    shelf.prompts.expect("yes/no/cancel", question, Answer::cancel, Icon::question);
    offer_kept_schedule(next.designer, folder, shelf.prompts);
    EXPECT_TRUE(is_schedule_kept(folder) && !is_modified(next.designer));
    EXPECT_TRUE(keep_schedule(next.designer, folder)) << "what waits is left alone";
    shelf.prompts.expect("yes/no/cancel", question, Answer::yes, Icon::question);
    offer_kept_schedule(next.designer, folder, shelf.prompts);
    EXPECT_TRUE(is_modified(next.designer));
    EXPECT_EQ(mash_schedule_bytes(next.designer.design), mash_schedule_bytes(brewer.designer.design));
    EXPECT_FALSE(is_schedule_kept(folder));
}

TEST(MashDesigner, AsksBeforeItDropsASchedule) {
    Shelf shelf;
    Designing brewer(mash_kitchen());
    EXPECT_TRUE(may_drop(brewer.designer, shelf.desk()));
    brewer.add("Dough In");
    brewer.type("mash_name", "Hell 1/2");
    shelf.prompts.expect_save("mash schedule", Answer::cancel);
    load_schedule(brewer.designer, shelf.desk());
    shelf.prompts.expect_save("mash schedule", Answer::yes);
    shelf.files.add(std::nullopt);
    EXPECT_FALSE(may_drop(brewer.designer, shelf.desk())) << "not saved after all";
    shelf.files.add(shelf.folder / "a.msh");
    EXPECT_TRUE(save_schedule(brewer.designer, shelf.desk()));
    EXPECT_TRUE(shelf.files.offers.back().ends_with(" Hell 1_2 msh"));
    EXPECT_TRUE(may_drop(brewer.designer, shelf.desk()));
    brewer.naming = {"Renamed", StepHeat::infuse, 0xFF112233, 0x445566};
    brewer.row<ListRow>("steps").activate();
    EXPECT_FALSE(is_modified(brewer.designer)) << "a name alone is no change, nor a fourth byte of a color";
    brewer.type("rest_time", "31");
    EXPECT_TRUE(is_modified(brewer.designer));
}

TEST(MashDesigner, LoadsFilesAndTellsWhatIsWrongWithThem) {
    Shelf shelf;
    Designing brewer(mash_kitchen());
    brewer.add("Dough In");
    brewer.type("grain", "20");
    shelf.files.add(shelf.folder / "a.msh");
    ASSERT_TRUE(save_schedule(brewer.designer, shelf.desk()));

    const MashOwner recipe{.side = DesignerSide::recipe, .grain = [] { return 10.0F; }};
    auto designer = document_designer({{}, 0, 15}, 0, recipe, mash_kitchen());
    shelf.files.add(shelf.folder / "a.msh");
    load_schedule(designer, shelf.desk());
    EXPECT_EQ(designer.design.mash.steps[0].amount, 15) << "with the recipe's own water";
    EXPECT_EQ(designer.file_name, "a.msh");
    undo(designer);
    EXPECT_EQ(designer.design.mash.step_count, 0);

    Designing other(mash_kitchen());
    shelf.files.add(shelf.folder / "a.msh");
    load_schedule(other.designer, shelf.desk());
    EXPECT_EQ(other.shown_all({"grain", "dough_in"}), "20.00|10.00");
    EXPECT_FALSE(is_modified(other.designer));

    shelf.files.add(shelf.folder / "absent.msh");
    shelf.prompts.expect_tell("File Not Found!", Icon::warning);
    load_schedule(other.designer, shelf.desk());
    auto damaged = other.designer.design;
    for (const auto count : {-1, 51}) {
        damaged.mash.step_count = count;
        SaveMashSchedule(shelf.folder / "b.msh", damaged);
        shelf.files.add(shelf.folder / "b.msh");
        shelf.prompts.expect_tell("b.msh is damaged and cannot be loaded.", Icon::warning);
        load_schedule(other.designer, shelf.desk());
        EXPECT_EQ(other.count(), 1U) << "left as it was";
    }
    std::filesystem::resize_file(shelf.folder / "a.msh", 8);
    shelf.files.add(shelf.folder / "a.msh");
    shelf.prompts.expect_tell("a.msh ended early; what is missing stays as it was.", Icon::warning);
    load_schedule(other.designer, shelf.desk());
    EXPECT_EQ(other.count(), 1U);
}

} // namespace
} // namespace wortlex
