#include "base/files.h"
#include "base/number.h"
#include "program/settings_forms/settings_session.h"
#include "support/scripted_user.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

// A brewer's settings on the disk, loaded and at work.
struct Brewery {
    TemporaryFolder folder;
    SystemFiles files;
    Settings working;
    FolderSet folders;
    ScriptedPrompts prompts;
    NoticeBoard notices;

    Brewery() {
        SystemFiles fresh{WriteDefaultSettings(), {}, true};
        fresh.settings.brewer_name.assign("Ada");
        EXPECT_TRUE(SaveSystemFiles(folder.path(), fresh));
        files = LoadSystemFiles(folder.path());
        working = settings_from(files.settings);
        folders = LoadFolders(folder.path());
    }
    SettingsDesk desk() { return {files, working, folders, folder.path(), notices}; }
    SystemSettings on_disk() const { return LoadSystemFiles(folder.path()).settings; }
    void expect_note() {
        prompts.expect_tell(
            "Please note that these setting will only temporarily overwrite your current default settings "
            "until the application is closed or until new settings are loaded.\n\nTo save these settings as "
            "the permanent settings you must use the 'Save As Default' option before closing the "
            "application.",
            Icon::information);
    }
    // What the three levels have of one setting.
    std::string batch_sizes() const {
        return fixed(files.settings.batch_size, 0) + " " + fixed(working.batch_size, 0) + " " +
               fixed(on_disk().batch_size, 0);
    }
};

constexpr auto overwrite = "Really Overwrite the Default Misc. System Settings?";
constexpr auto overwrite_too =
    "Do you also want to overwrite the Default System Settings with these settings?";

TEST(SettingsSession, ImageWorkingValuesAndDiskDifferAsTold) {
    Brewery brewery;
    {
        SettingsSession session(brewery.desk());
        session.image().batch_size = 7;
        EXPECT_EQ(brewery.batch_sizes(), "7 5 5") << "an edit reaches the image";
        session.cancel();
        EXPECT_EQ(brewery.batch_sizes(), "5 5 5");
    }
    {
        SettingsSession session(brewery.desk());
        session.image().batch_size = 8;
        session.brewer_name.assign("Grace");
        brewery.working.foreground[2] = 0x123456; // as the colour dialog does
        session.accept();
        EXPECT_EQ(brewery.batch_sizes(), "8 8 5") << "OK is for this run";
        EXPECT_EQ(brewery.files.settings.brewer_name.view(), "Grace");
        EXPECT_EQ(brewery.files.settings.foreground[2], 0x123456U);
    }
    SettingsSession session(brewery.desk());
    brewery.prompts.expect_yes_no(overwrite, Answer::no);
    session.save_as_default(brewery.prompts);
    EXPECT_EQ(brewery.batch_sizes(), "8 8 5");
    set_folder(brewery.folders, FolderKind::recipes, "/elsewhere/");
    brewery.prompts.expect_yes_no(overwrite, Answer::yes);
    session.save_as_default(brewery.prompts);
    EXPECT_EQ(brewery.batch_sizes(), "8 8 8");
    EXPECT_EQ(folder_path(LoadFolders(brewery.folder.path()), FolderKind::recipes), "/elsewhere/");
}

TEST(SettingsSession, CancelUndoesWhatTheDialogsBelowAccepted) {
    Brewery brewery;
    const auto before = brewery.files.settings;
    SettingsSession session(brewery.desk());
    session.image().sg_precision = 2;
    brewery.files.competition.brew_club.assign("Foam");
    brewery.working.background[0] = 1;
    set_folder(brewery.folders, FolderKind::sessions, "/elsewhere/");
    session.cancel();
    EXPECT_EQ(brewery.files.settings, before);
    EXPECT_TRUE(brewery.files.competition.brew_club.empty());
    EXPECT_EQ(brewery.working.background, before.background);
    EXPECT_NE(folder_path(brewery.folders, FolderKind::sessions), "/elsewhere/");
}

TEST(SettingsSession, LoadedFilesWorkUntilTheEndAndKeepTheNamesOfTheDialog) {
    Brewery brewery;
    auto other = WriteDefaultSettings();
    other.batch_size = 11;
    other.brewer_name.assign("Linus");
    other.foreground[0] = 77;
    const auto path = brewery.folder / "other.wxt";
    ASSERT_TRUE(SaveSettingsFile(path, other));
    SettingsSession session(brewery.desk());
    ScriptedFiles files({path});
    brewery.expect_note();
    session.load(files, brewery.prompts);
    EXPECT_EQ(brewery.batch_sizes(), "11 11 5");
    EXPECT_EQ(brewery.working.foreground[0], 77U);
    session.accept();
    EXPECT_EQ(brewery.files.settings.brewer_name.view(), "Ada") << "the open dialog's, not the file's";

    auto bytes = *read_file(path);
    bytes.resize(1428); // up to the batch size
    save_atomically(path, bytes);
    brewery.files.settings.wort_size = 3;
    ScriptedFiles again({path});
    brewery.prompts.expect_tell("The settings file ended early. What is missing stays as it is now.",
                                Icon::warning);
    brewery.expect_note();
    session.load(again, brewery.prompts);
    EXPECT_EQ(brewery.files.settings.wort_size, 3.0F);

    ASSERT_TRUE(save_atomically(path, Bytes(12794, std::byte{0x4D}))); // a picture
    ScriptedFiles picture({path});
    brewery.prompts.expect_tell("other.wxt is damaged and cannot be loaded. The settings stay as they "
                                "are.\nChoose a file that was saved by Save To File.",
                                Icon::error);
    session.load(picture, brewery.prompts);
    EXPECT_EQ(brewery.files.settings.wort_size, 3.0F);
}

TEST(SettingsSession, SavedFilesHoldWhatTheDialogShows) {
    Brewery brewery;
    SettingsSession session(brewery.desk());
    session.image().batch_size = 9;
    session.brewer_name.assign("Grace");
    brewery.working.background[1] = 42;
    const auto path = brewery.folder / "mine.wxt";
    ScriptedFiles files({path});
    brewery.prompts.expect_yes_no(overwrite_too, Answer::no);
    session.save(files, brewery.prompts);
    SystemSettings written;
    ASSERT_EQ(LoadSettingsFile(path, written), SettingsLoad::loaded);
    EXPECT_EQ(std::tuple(written.batch_size, written.brewer_name.view(), written.background[1]),
              std::tuple(9.0F, std::string_view("Grace"), 42U));
    EXPECT_EQ(brewery.batch_sizes(), "9 5 5") << "neither working values nor disk are touched by a No";
    set_folder(brewery.folders, FolderKind::recipes, "/elsewhere/");
    ScriptedFiles again({path});
    brewery.prompts.expect_yes_no(overwrite_too, Answer::yes);
    session.save(again, brewery.prompts);
    EXPECT_EQ(brewery.batch_sizes(), "9 9 9");
    EXPECT_NE(folder_path(LoadFolders(brewery.folder.path()), FolderKind::recipes), "/elsewhere/");
    EXPECT_EQ(files.offers.at(0),
              "save System Setting File (*.wxt)|*.wxt " + brewery.folder.path() + "  wxt");
}

} // namespace
} // namespace wortlex
