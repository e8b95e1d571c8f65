#include "base/files.h"
#include "mash/records/schedule_file.h"
#include "support/desk.h"
#include "support/record_rows.h"
#include "support/temporary_folder.h"
#include "water/records/water_needs.h"

namespace wortlex {
namespace {

Settings settings_with_tun(float thermal_mass) {
    auto image = WriteDefaultSettings();
    image.tun_thermal_mass = thermal_mass;
    return settings_from(image);
}

FieldRows<MashDesign> schedule_rows() {
    using R = MashDesign;
    using M = ComplexMash;
    return rows<R>(Inside{0, rows<M>(i32(0, &M::step_count)), &R::mash}, f32(4, &R::grain_weight),
                   Inside{8, rows<M>(i32(0, &M::grain_temperature)), &R::mash}, f32(12, &R::dough_in_water),
                   Inside{16,
                          rows<M>(f32(0, &M::tun_thermal_mass), Each{4, 292, 50, mash_step_rows(), &M::steps},
                                  text(14604, &M::mash_name)),
                          &R::mash});
}

// A file that a load does not change: with this thermal mass and an infusion first.
Bytes schedule_file(float thermal_mass) {
    auto file = distinct_bytes(14875);
    poke(file, 16, thermal_mass);
    poke(file, 20 + 255, std::uint8_t{0});
    return file;
}

TEST(MashRecords, StandInFilesAsTheirTablesSay) {
    expect_layout(62, simple_mash_layout, simple_mash_rows());
    expect_layout(292, mash_step_layout, mash_step_rows());
}

TEST(MashScheduleFile, IsReadAndWrittenFieldByField) {
    const auto file = schedule_file(0.25F);
    MashDesign design;
    EXPECT_EQ(read_mash_schedule(file, design, settings_with_tun(0.25F)), ScheduleLoad::loaded);
    expect_fields(schedule_rows(), design, file);
    EXPECT_EQ(first_difference(mash_schedule_bytes(design), file), -1);
    EXPECT_EQ(mash_schedule_bytes({}).size(), 14875U) << "all slots of an empty schedule";
}

TEST(MashScheduleFile, ThermalMassIsTheSettingsAndTheFirstStepAnInfusion) {
    for (const auto heat : std::array<std::uint8_t, 2>{1, 2}) {
        auto file = schedule_file(0.25F);
        poke(file, 20 + 255, heat);
        poke(file, 20 + 292 + 255, heat);
        MashDesign design;
        read_mash_schedule(file, design, settings_with_tun(3.5F));
        EXPECT_EQ(design.mash.tun_thermal_mass, 3.5F);
        EXPECT_EQ(design.mash.steps[0].heat_type, StepHeat::infuse);
        EXPECT_EQ(design.mash.steps[1].heat_type, static_cast<StepHeat>(heat)) << "others keep theirs";
    }
}

TEST(MashScheduleFile, DesignerTakesGrainAndWaterADocumentDoesNot) {
    const TemporaryFolder folder;
    MashDesign saved;
    saved.grain_weight = 22;
    saved.dough_in_water = 33;
    saved.mash.step_count = 4;
    saved.mash.grain_temperature = 66;
    saved.mash.mash_name.assign("Double decoction");
    ASSERT_TRUE(SaveMashSchedule(folder / "a.msh", saved));
    const auto settings = settings_with_tun(0);
    MashDesign design;
    EXPECT_EQ(LoadMashSchedule(folder / "a.msh", design, settings), ScheduleLoad::loaded);
    EXPECT_TRUE(design == saved);
    ComplexMash mash;
    EXPECT_EQ(LoadMashSchedule(folder / "a.msh", mash, settings), ScheduleLoad::loaded);
    EXPECT_TRUE(mash == saved.mash);
}

TEST(MashScheduleFile, MissingFileChangesNothingAndAShortOneKeepsTheRest) {
    const TemporaryFolder folder;
    const auto settings = settings_with_tun(1);
    MashDesign design;
    design.mash.steps[0].heat_type = StepHeat::direct;
    design.mash.mash_name.assign("mine");
    const auto before = design;
    EXPECT_EQ(LoadMashSchedule(folder / "absent.msh", design, settings), ScheduleLoad::not_found);
    EXPECT_EQ(LoadMashSchedule(folder / "absent.msh", design.mash, settings), ScheduleLoad::not_found);
    EXPECT_TRUE(design == before);

    const auto whole = schedule_file(1);
    ASSERT_TRUE(save_atomically(folder / "short.msh", ByteView(whole).first(700)));
    EXPECT_EQ(LoadMashSchedule(folder / "short.msh", design.mash, settings), ScheduleLoad::incomplete);
    EXPECT_EQ(design.mash.step_count, peek<std::int32_t>(whole, 0));
    EXPECT_EQ(design.mash.mash_name.view(), "mine");

    for (std::size_t cut = 0; cut < whole.size(); cut += cut < 700 ? 1 : 97) {
        auto expected = mash_schedule_bytes(before);
        std::copy_n(whole.begin(), cut, expected.begin());
        poke(expected, 16, 1.0F);
        poke(expected, 20 + 255, std::uint8_t{0});
        auto short_load = before;
        EXPECT_EQ(read_mash_schedule(ByteView(whole).first(cut), short_load, settings),
                  ScheduleLoad::incomplete);
        ASSERT_EQ(first_difference(mash_schedule_bytes(short_load), expected), -1) << "cut at " << cut;
    }
}

TEST(MashScheduleFile, DialogsStartInTheFolderThatMayFollowTheUser) {
    for (const bool automatic : {false, true}) {
        FolderSet folders;
        folders.save_automatically = automatic;
        set_folder(folders, FolderKind::mash_schedules, "C:\\mash");
        ScriptedFiles files({"/old/a.msh", std::nullopt, "/new/b.msh"});
        EXPECT_EQ(ChooseMashScheduleToOpen(files, folders), "/old/a.msh");
        EXPECT_EQ(ChooseMashScheduleToOpen(files, folders), std::nullopt) << "left, and nothing to follow";
        EXPECT_EQ(ChooseMashScheduleToSave(files, folders, "Pils"), "/new/b.msh");
        EXPECT_EQ(files.offers[0].folder, "C:/mash/");
        const auto& save = files.offers[2];
        EXPECT_EQ((std::tuple{save.saving, save.filter, save.folder, save.suggested_name, save.extension}),
                  (std::tuple{true, "Mash Schedule File (*.msh)|*.msh", automatic ? "/old/" : "C:/mash/",
                              "Pils", "msh"}));
        EXPECT_EQ(folder_path(folders, FolderKind::mash_schedules), automatic ? "/new/" : "C:/mash/");
    }
}

TEST(MashRecords, StepsInUseStayWithinTheSlots) {
    ComplexMash mash;
    for (const auto& [count, used] :
         {std::pair{-1, 0U}, {0, 0U}, {49, 49U}, {50, 50U}, {51, 50U}, {2147483647, 50U}}) {
        mash.step_count = count;
        EXPECT_EQ(mash.used_steps().size(), used) << count;
    }
    EXPECT_FALSE((Rest{150, 0}.is_present() || Rest{0, 30}.is_present()));
    EXPECT_TRUE((Rest{150, 30}.is_present()));
}

TEST(MashRecords, DesignerStartsWithASizeForItsBrewer) {
    auto image = WriteDefaultSettings();
    image.grain_temperature = 71.9F;
    image.tun_thermal_mass = 2;
    const auto home = new_mash_design(settings_from(image));
    EXPECT_EQ(home.grain_weight, 10.0F);
    EXPECT_EQ(home.mash.grain_temperature, 71) << "cut, not rounded";
    EXPECT_EQ(home.mash.tun_thermal_mass, 2.0F);
    EXPECT_EQ(home.mash.steps[49].step_colour, 255U);
    EXPECT_EQ(home.mash.steps[49].rest_colour, 65535U);
    image.system_mode = SystemMode::pro_brewer;
    EXPECT_EQ(new_mash_design(settings_from(image)).grain_weight, 1200.0F);
}

TEST(WaterNeeds, StandInTheirFileAsTheTableSays) {
    expect_layout(60, water_needs_layout, water_needs_rows());
    const TemporaryFolder folder;
    WaterNeeds needs, again;
    needs.other = 3;
    again.sparge = 7;
    LoadWaterUsage(folder.path(), again);
    EXPECT_EQ(again.sparge, 7.0F) << "a missing file changes nothing";
    ASSERT_TRUE(SaveWaterUsage(folder.path(), needs));
    EXPECT_EQ(read_file(folder / "WATER_USAGE.DAT")->size(), 60U);
    LoadWaterUsage(folder.path(), again);
    EXPECT_TRUE(again == needs);
}

} // namespace
} // namespace wortlex
