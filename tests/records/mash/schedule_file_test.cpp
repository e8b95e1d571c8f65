#include "records/mash/schedule_file.h"
#include "records/water/water_needs.h"
#include "support/scripted_files.h"
#include "support/temporary_folder.h"

namespace wortlex {
namespace {

TEST(MashScheduleFile, DesignerTakesGrainAndWaterADocumentDoesNot) {
    const TemporaryFolder folder;
    const Settings settings; // whose thermal mass is 0
    MashDesign saved{{4, 66, 0, {}, Text<255>("Double decoction")}, 22, 33}, design;
    ComplexMash mash;
    ASSERT_TRUE(SaveMashSchedule(folder / "a.msh", saved));
    EXPECT_EQ(LoadMashSchedule(folder / "a.msh", design, settings), ScheduleLoad::loaded);
    EXPECT_EQ(LoadMashSchedule(folder / "a.msh", mash, settings), ScheduleLoad::loaded);
    EXPECT_TRUE(design == saved && mash == saved.mash);
    std::filesystem::resize_file(folder / "a.msh", 4);
    EXPECT_EQ(LoadMashSchedule(folder / "a.msh", mash, settings), ScheduleLoad::incomplete);
    EXPECT_TRUE(mash == saved.mash) << "what is missing stays";
    saved.mash.steps[0].heat_type = mash.steps[0].heat_type = StepHeat::direct; // which a load would change
    design.mash = mash;
    EXPECT_EQ(LoadMashSchedule(folder / "absent.msh", design, settings), ScheduleLoad::not_found);
    EXPECT_EQ(LoadMashSchedule(folder / "absent.msh", mash, settings), ScheduleLoad::not_found);
    EXPECT_TRUE(design == saved && mash == saved.mash);
}

TEST(MashScheduleFile, DialogsStartInTheFolderThatMayFollowTheUser) {
    for (const std::string kept : {"C:/mash/", ""}) { // or followed
        FolderSet folders;
        folders.save_automatically = kept.empty();
        set_folder(folders, FolderKind::mash_schedules, "C:\\mash");
        ScriptedFiles files({"/old/a.msh", std::nullopt, "/new/b.msh"});
        EXPECT_EQ(ChooseMashScheduleToOpen(files, folders), "/old/a.msh");
        EXPECT_EQ(ChooseMashScheduleToOpen(files, folders), std::nullopt) << "left, and nothing to follow";
        EXPECT_EQ(ChooseMashScheduleToSave(files, folders, "Pils"), "/new/b.msh");
        const std::string start = "Mash Schedule File (*.msh)|*.msh C:/mash/  msh",
                          later = "Mash Schedule File (*.msh)|*.msh " + (kept.empty() ? "/old/" : kept);
        EXPECT_EQ(files.offers,
                  (std::vector{"open " + start, "open " + later + "  msh", "save " + later + " Pils msh"}));
        EXPECT_EQ(folder_path(folders, FolderKind::mash_schedules), kept.empty() ? "/new/" : kept);
    }
}

TEST(MashRecords, StepsInUseStayWithinTheSlots) {
    ComplexMash mash;
    for (const auto& [count, used] :
         {std::pair{-1, 0U}, {0, 0U}, {49, 49U}, {50, 50U}, {51, 50U}, {2147483647, 50U}}) {
        mash.step_count = count;
        EXPECT_EQ(mash.used_steps().size(), used) << count;
    }
    EXPECT_FALSE((Rest{150, 0}.is_present() || Rest{0, 30}.is_present() || !Rest{150, 30}.is_present()));
}

TEST(WaterUsage, ComesBackFromItsFile) {
    const TemporaryFolder folder;
    WaterNeeds needs, again;
    needs.other = 3;
    again.sparge = 7;
    LoadWaterUsage(folder.path(), again);
    EXPECT_EQ(again.sparge, 7.0F) << "a missing file changes nothing";
    ASSERT_TRUE(SaveWaterUsage(folder.path(), needs));
    EXPECT_EQ(std::filesystem::file_size(folder / "WATER_USAGE.DAT"), 60U);
    LoadWaterUsage(folder.path(), again);
    EXPECT_TRUE(again == needs);
}

} // namespace
} // namespace wortlex
