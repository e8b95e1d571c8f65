#include "base/files.h"
#include "frame/settings/system_files.h"
#include "support/byte_probe.h"
#include "support/temporary_folder.h"

namespace wortlex {
namespace {

void write(const std::string& path, const Bytes& content) {
    ASSERT_TRUE(save_atomically(path, content));
}

TEST(SystemFiles, LoadWholeShortMissingAndOversized) {
    struct Row {
        const char* why;
        std::size_t size;
        bool loaded;
    };
    for (const auto& row :
         {Row{"whole", 1580, true}, Row{"oversized", 1700, true}, Row{"last byte lost", 1579, false},
          Row{"up to a field's middle", 1426, false}, Row{"empty", 0, false}}) {
        SCOPED_TRACE(row.why);
        const TemporaryFolder folder;
        const auto content = distinct_bytes(row.size);
        write(folder / "WlxMSys.DAT", content);
        auto files = LoadSystemFiles(folder.path());
        EXPECT_EQ(files.loaded, row.loaded);
        auto expected = content;
        expected.resize(1580);
        EXPECT_EQ(first_difference(encoded(files.settings, system_settings_layout), expected), -1);

        files.settings = WriteDefaultSettings();
        files.competition.brew_club.assign("Mashers");
        EXPECT_TRUE(SaveSystemFiles(folder.path(), files));
        EXPECT_EQ(read_file(folder / "WlxMSys.DAT") != content, row.loaded)
            << "written only if it was loaded";
        const auto competition = *read_file(folder / "WlxCSys.DAT");
        EXPECT_EQ(competition.size(), 2295U);
        EXPECT_EQ(peek<char>(competition, 2040), 'M');
        EXPECT_TRUE(LoadSystemFiles(folder.path()).competition == files.competition);
    }
    const TemporaryFolder empty;
    const auto files = LoadSystemFiles(empty.path());
    EXPECT_FALSE(files.loaded);
    EXPECT_TRUE(files.settings == WriteDefaultSettings());
}

TEST(SystemFiles, CompetitionFieldsStandWhereTheTableSays) {
    const TemporaryFolder folder;
    const auto file = distinct_bytes(2295);
    write(folder / "WlxCSys.DAT", file);
    const auto files = LoadSystemFiles(folder.path());
    using R = CompetitionInfo;
    expect_fields<R>({text(0, &R::address), text(1275, &R::daytime_phone), text(1530, &R::evening_phone),
                      text(1785, &R::email_address), text(2040, &R::brew_club)},
                     files.competition, file);
    EXPECT_TRUE(SaveSystemFiles(folder.path(), files));
    EXPECT_EQ(read_file(folder / "WlxCSys.DAT"), file);
}

TEST(SystemFiles, SavedSettingsComeBackAndAMissingFileChangesNothing) {
    const TemporaryFolder folder;
    auto image = WriteDefaultSettings();
    image.batch_size = 12;
    ASSERT_TRUE(SaveSettingsFile(folder / "a.wxt", image));
    EXPECT_EQ(read_file(folder / "a.wxt")->size(), 1580U);
    SystemSettings again;
    EXPECT_FALSE(LoadSettingsFile(folder / "absent.wxt", again));
    EXPECT_TRUE(again == SystemSettings());
    EXPECT_TRUE(LoadSettingsFile(folder / "a.wxt", again));
    EXPECT_TRUE(again == image);
}

// A folder file with a path of its own in each of the first `fields` fields.
Bytes folder_file(std::size_t fields) {
    Bytes file(1024 * fields);
    for (std::size_t i = 0; i < fields; ++i)
        poke(file, 1024 * i, std::array{'/', static_cast<char>('a' + i)});
    return file;
}

std::vector<std::string> paths_of(const FolderSet& folders) {
    std::vector<std::string> paths;
    for (std::uint8_t kind = 0; kind < 8; ++kind)
        paths.push_back(folder_path(folders, static_cast<FolderKind>(kind)));
    return paths;
}

TEST(Folders, FieldsThatAnOlderFileLacksBecomeTheDataFolder) {
    const TemporaryFolder folder;
    const auto& data = folder.path();
    write(folder / "WlxDir.dir", folder_file(8));
    EXPECT_EQ(paths_of(LoadFolders(data)),
              (std::vector<std::string>{"/a/", "/b/", "/c/", "/d/", "/e/", "/f/", "/g/", "/h/"}));
    write(folder / "WlxDir.dir", folder_file(4));
    EXPECT_EQ(paths_of(LoadFolders(data)),
              (std::vector<std::string>{"/a/", "/b/", "/c/", "/d/", data, data, data, data}));
    write(folder / "WlxDir.dir", folder_file(6));
    EXPECT_EQ(paths_of(LoadFolders(data)),
              (std::vector<std::string>{"/a/", "/b/", "/c/", "/d/", "/e/", "/f/", data, data}));
}

TEST(Folders, EmptyOnesGetTheirPlaceBelowTheDataFolder) {
    const TemporaryFolder folder;
    const auto& data = folder.path();
    const std::vector<std::string> usual = {
        data + "Recipes/",      data + "Sessions/",     data + "MashSchedules/", data + "WaterProfiles/",
        data + "HTML_Exports/", data + "Text_Exports/", data + "JPG_Exports/",   data + "HTML_Themes/"};
    EXPECT_EQ(paths_of(LoadFolders(data)), usual) << "no file";
    auto with_html = usual;
    with_html[4] = data;
    for (const char html : {'\0', 'x', '/'}) { // shorter than two characters
        Bytes file(8192);
        poke(file, 4096, html);
        write(folder / "WlxDir.dir", file);
        EXPECT_EQ(paths_of(LoadFolders(data)), with_html) << "HTML exports in \"" << html << '"';
    }
}

TEST(Folders, AutomaticFlagIsTheLastByteOfTheFirstField) {
    for (const auto stored : std::array<std::uint8_t, 5>{0, 1, 2, 7, 255}) {
        const TemporaryFolder folder;
        auto file = folder_file(8);
        poke(file, 1023, stored);
        write(folder / "WlxDir.dir", file);
        auto folders = LoadFolders(folder.path());
        EXPECT_EQ(folders.save_automatically, stored == 1) << int{stored};
        set_folder(folders, FolderKind::sessions, "/new/");
        EXPECT_TRUE(SaveFoldersIfAutomatic(folder.path(), folders));
        EXPECT_EQ(paths_of(LoadFolders(folder.path()))[1], stored == 1 ? "/new/" : "/b/");
        set_folder(folders, FolderKind::recipes, std::string(2000, 'x'));
        ASSERT_TRUE(SaveFolders(folder.path(), folders));
        const auto saved = *read_file(folder / "WlxDir.dir");
        EXPECT_EQ(saved.size(), 8192U);
        EXPECT_EQ(peek<std::uint8_t>(saved, 1023), stored == 1) << "no path reaches the flag";
        EXPECT_EQ(peek<char>(saved, 1021), 'x');
        EXPECT_EQ(peek<char>(saved, 1024), '/');
    }
}

TEST(Positions, StandInTheirFilesAndHaveBuiltInValues) {
    const TemporaryFolder folder;
    EXPECT_TRUE(LoadMainPosition(folder.path()) == (MainPosition{{1, 1, 640, 480}, 0}));
    ASSERT_TRUE(SaveMainPosition(folder.path(), {{-5, 20, 300, 400}, 1}));
    const auto window = *read_file(folder / "WlxWin.pos");
    ASSERT_EQ(window.size(), 17U);
    for (const auto& [at, value] : {std::pair{0, -5}, {4, 20}, {8, 300}, {12, 400}})
        EXPECT_EQ(peek<std::int32_t>(window, static_cast<std::size_t>(at)), value);
    EXPECT_EQ(peek<std::uint8_t>(window, 16), 1);
    EXPECT_TRUE(LoadMainPosition(folder.path()) == (MainPosition{{-5, 20, 300, 400}, 1}));

    auto tools = LoadToolPositions(folder.path());
    EXPECT_TRUE(tools == ToolPositions());
    tools.slots[99] = {7, 8, 9, 10};
    ASSERT_TRUE(SaveToolPositions(folder.path(), tools));
    const auto slots = *read_file(folder / "WlxGlobalWin.pos");
    ASSERT_EQ(slots.size(), 3200U);
    EXPECT_EQ(peek<std::int32_t>(slots, 16 * 99 + 12), 10);
    EXPECT_TRUE(LoadToolPositions(folder.path()) == tools);
}

TEST(Reminders, AreShownUntilTheFileSaysNo) {
    const TemporaryFolder folder;
    EXPECT_TRUE(LoadReminders(folder.path()) == (ReminderFlags{1, 1, 1}));
    ASSERT_TRUE(SaveReminders(folder.path(), {0, 1, 0}));
    EXPECT_EQ(read_file(folder / "Nags.dat"), (Bytes{std::byte{0}, std::byte{1}, std::byte{0}}));
    EXPECT_TRUE(LoadReminders(folder.path()) == (ReminderFlags{0, 1, 0}));
    write(folder / "Nags.dat", Bytes(1));
    EXPECT_TRUE(LoadReminders(folder.path()) == (ReminderFlags{0, 1, 1})) << "a short file";
}

TEST(PrintSelection, EachDocumentKindHasItsFile) {
    const TemporaryFolder folder;
    const auto recipe = distinct_bytes(52);
    Bytes session(52);
    poke(session, 18, std::uint8_t{1});
    poke(session, 48, 0.75F);
    write(folder / "RPSys.DAT", recipe);
    write(folder / "BPSys.DAT", session);
    auto loaded = LoadPrintSelection(folder.path(), DocumentKind::session, 9);
    EXPECT_EQ(loaded[PrintSection::efficiency], 1);
    EXPECT_EQ(loaded[PrintSection::mash_schedule], 0);
    EXPECT_EQ(loaded.scale, 0.75F);
    loaded[PrintOption::solid_fill] = 1;
    ASSERT_TRUE(SavePrintSelection(folder.path(), DocumentKind::session, loaded));
    poke(session, 24 + 1, std::uint8_t{1});
    EXPECT_EQ(read_file(folder / "BPSys.DAT"), session);
    EXPECT_EQ(read_file(folder / "RPSys.DAT"), recipe) << "the other kind's file";
    EXPECT_EQ(LoadPrintSelection(folder / "absent/", DocumentKind::recipe, 0.5F).scale, 0.5F);
}

TEST(PrintSelection, HtmlAndClipboardExcludeEachOther) {
    for (const auto& [html, clipboard] : {std::pair{0, 0}, {0, 1}, {1, 0}, {1, 1}}) {
        const TemporaryFolder folder;
        Bytes file(52);
        poke(file, 24 + 4, static_cast<std::uint8_t>(html));
        poke(file, 24 + 5, static_cast<std::uint8_t>(clipboard));
        write(folder / "RPSys.DAT", file);
        auto loaded = LoadPrintSelection(folder.path(), DocumentKind::recipe, 1);
        const bool both = html + clipboard == 2;
        EXPECT_EQ(loaded[PrintOption::html_file], both ? 0 : html);
        EXPECT_EQ(loaded[PrintOption::clipboard], both ? 0 : clipboard);
    }
}

} // namespace
} // namespace wortlex
