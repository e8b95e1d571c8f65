#include "base/files.h"
#include "base/ports/notice_board.h"
#include "documents/method_check.h"
#include "program/exit.h"
#include "program/main_screen.h"
#include "program/start.h"
#include "support/byte_probe.h"
#include "support/scripted_files.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace wortlex {
namespace {

using testing::ElementsAre;

TEST(NoticeBoard, KeepsToItsListenersWhileTheyComeAndGo) {
    NoticeBoard board;
    std::string heard;
    Listening first, second, late;
    first = board.listen([&](Change) {
        heard += "first ";
        first = second = nullptr;
        late = board.listen([&](Change) { heard += "late "; });
        board.tell(Change::document);
    });
    second = board.listen([&](Change) { heard += "second "; });
    const auto third = board.listen([&](Change) { heard += "third "; });
    board.tell(Change::settings);
    EXPECT_EQ(heard, "first third late third ");
}

// Writes down what is asked of it.
struct FakeTool : OpenTool {
    FakeTool(std::string& all, int command) : log(all), name(std::to_string(command)) {}
    void note(const char* what) { log += name + what; }
    void activate() override { note(" forward "); }
    bool close() override { return note(" close "), closes; }
    void keep_work() override { note(" keep "); }
    bool show_modal_child() override { return has_dialog && (note(" dialog "), true); }

    std::string &log, name;
    bool closes = true, has_dialog = false;
};

TEST(Tools, AreOpenOnceAndKeepTheSettingsFromBeingEdited) {
    OpenTools tools;
    ScriptedPrompts prompts;
    for (const int command : {40003, 40004, 40006, 40013, 40042, 40047}) {
        std::string log;
        const auto window = std::make_shared<FakeTool>(log, command);
        EXPECT_FALSE(activate_if_open(tools, command)) << command;
        EXPECT_TRUE(may_edit_settings(tools, prompts));
        opened(tools, command, window);
        EXPECT_TRUE(activate_if_open(tools, command)) << command;
        EXPECT_EQ(log, window->name + " forward ");
        prompts.expect_tell(
            "You cannot modify the System Defaults while other Wortlex windows are open. To modify the "
            "System Defaults, please close the current work (make sure to save your work if required), then "
            "choose "
            "System Defaults again.",
            Icon::information);
        EXPECT_FALSE(may_edit_settings(tools, prompts));
        if (command != 40003) closed(tools, command); // a window gone without a word locks nothing
    }
}

TEST(Tools, OfTwoDocumentsOneIsOpen) {
    using enum DocumentKind;
    const std::tuple<DocumentKind, DocumentKind, int, std::string, std::string> rows[] = {
        {recipe, session, 40004, "recipe", "brewing session"},
        {session, recipe, 40005, "brewing session", "recipe"}};
    for (const auto& [kind, other, command, its, others] : rows) {
        const auto question = "You cannot open a " + others + " while a " + its +
                              " is open.\nWould you like to transfer to the currently open " + its + "?";
        Program program;
        std::string log;
        const auto window = std::make_shared<FakeTool>(log, 1);
        ScriptedPrompts prompts;
        opened(program.tools, command, window);
        EXPECT_EQ(want_document(program.tools, kind, prompts), Wanted::reactivated);
        prompts.expect_yes_no(question, Answer::no);
        EXPECT_EQ(want_document(program.tools, other, prompts), Wanted::refused);
        prompts.expect_yes_no(question, Answer::yes);
        EXPECT_FALSE(open_document_file(program, other == recipe ? "dropped.rec" : "dropped.brw", prompts));
        EXPECT_EQ(log, "1 forward 1 forward ");
    }
}

TEST(Start, ReadsWhatIsThereAndGoesOnWithoutAllButTheSettings) {
    const TemporaryFolder folder;
    auto settings = WriteDefaultSettings();
    settings.system_mode = SystemMode::pro_brewer;
    settings.printer_scale = 0.75F;
    SaveSettingsFile(folder / "WlxMSys.DAT", settings);
    SaveMainPosition(folder.path(), {{3, 4, 5, 6}, 1});
    Program program;
    ScriptedPrompts prompts;
    prompts.expect_tell("The file WATER.DAT was not found. Its database is empty until the file is back.",
                        Icon::warning);
    prompts.expect("tell", "Could not read kv_lovrgb.ldt file!", {}, Icon::error, "Wortlex Error");
    EXPECT_TRUE(start(program, folder.path(), prompts));
    EXPECT_EQ(folder_path(program.folders, FolderKind::sessions), folder / "Sessions/");
    EXPECT_TRUE(program.main_position.window.bottom == 6 && program.recipe_print.scale == 0.75F);
    EXPECT_EQ(program.calculators.carbonation.beer.gallons, 527) << "a brewery's";
    std::filesystem::resize_file(folder / "WlxMSys.DAT", 1579);
    prompts.expect_tell("Bad Or Missing System File!", Icon::error);
    EXPECT_FALSE(start(program, folder.path(), prompts)) << "and nothing more is told";
}

TEST(Exit, IsStoppedByADialogOrAWindowAndThenWritesNothing) {
    const TemporaryFolder folder;
    Program program;
    program.data_folder = folder.path();
    program.folders.save_automatically = 1;
    std::string log;
    std::map<int, std::shared_ptr<FakeTool>> windows;
    for (const int command : {40013, 40011, 40005, 40046, 40047}) {
        windows[command] = std::make_shared<FakeTool>(log, command);
        opened(program.tools, command, windows[command]);
    }
    EXPECT_TRUE(activate_if_open(program.tools, 40046)) << "shares a slot with the next";
    windows.erase(40047);
    EXPECT_FALSE(activate_if_open(program.tools, 40047)) << "a lost window is to be opened anew";
    windows[40046]->has_dialog = true;
    EXPECT_FALSE(leave(program, MainPosition()));
    windows[40046]->has_dialog = windows[40011]->closes = false;
    EXPECT_FALSE(leave(program, MainPosition()));
    EXPECT_EQ(log, "40047 forward 40046 dialog 40005 close 40011 close ");
    EXPECT_TRUE(folder.entries() == 0 && any_open(program.tools));
    windows[40011]->closes = true;
    EXPECT_TRUE(leave(program, std::nullopt) && !any_open(program.tools));
    EXPECT_EQ(folder.entries(), 2) << "the positions of tools, and folders";
    EXPECT_TRUE(leave(program, MainPosition{{7, 8, 9, 10}, 1}));
    EXPECT_EQ(LoadMainPosition(folder.path()).window.left, 7);
}

// Its rows begin right behind a header of `length` bytes.
Bytes bitmap(std::uint32_t length, std::int32_t width, std::int32_t height, std::uint16_t bits,
             std::size_t pixels) {
    Bytes file(14 + length + pixels);
    poke(file, 0, std::array{'B', 'M'});
    poke(file, 10, std::array{14 + length, length});
    poke(file, 18, width);
    length == 12 ? poke(file, 20, static_cast<std::int16_t>(height)) : poke(file, 22, height);
    poke(file, length == 12 ? 24 : 28, bits);
    return file;
}

TEST(MainScreen, SaysWhatIsWrongWithABitmap) {
    const auto *info = "Could not read info", *cut = "1Error reading the file",
               *memory = "Error Allocating Memory", *header = "Error Reading FIle Header";
    // clang-format off
    const std::tuple<Bytes, std::string> rows[] = {
        {bitmap(40, 3, 2, 24, 24), ""}, {bitmap(40, 3, 2, 24, 23), cut}, {bitmap(108, 3, -2, 24, 24), ""},
        {bitmap(12, 3, 2, 1, 8), ""}, {bitmap(12, 3, 2, 1, 7), cut}, {bitmap(39, 1, 1, 24, 4), info},
        {bitmap(40, 1, 1, 7, 4), info}, {bitmap(40, 0, 1, 24, 4), info}, {Bytes(54, std::byte{'B'}), header},
        {bitmap(40, 10000, 6000, 1, 0), cut}, {bitmap(40, 10000, 6001, 1, 0), memory},
        {bitmap(40, 0x7FFFFFFF, -0x7FFFFFFF - 1, 32, 0), memory}, {Bytes(13, std::byte{'B'}), header}};
    // clang-format on
    for (const auto& [file, fault] : rows) EXPECT_EQ(bitmap_fault(file), fault) << file.size();
    for (std::size_t size = 14; size < 54; ++size)
        EXPECT_EQ(bitmap_fault(ByteView(std::get<0>(rows[0])).first(size)), info) << size;
    EXPECT_EQ(bitmap_fault(std::nullopt), "Error Reading FIle");
}

// A program with a folder and a recipe in it.
struct Documents : testing::Test {
    Documents() {
        program.data_folder = folder.path();
        program.settings = settings_from(program.system.settings = WriteDefaultSettings());
        BrewDocument saved = new_document(program.settings, ScheduleKind::simple);
        saved.title.assign("Pale");
        EXPECT_TRUE(save_recipe(pale, saved, prompts));
        new_recipe(program);
    }
    void expect_fault(const std::string& name, const std::string& text, Icon icon = Icon::error) {
        prompts.expect_tell(text, icon);
        EXPECT_EQ(open_document_file(program, folder / name, prompts), icon == Icon::warning);
    }

    TemporaryFolder folder;
    std::string pale = folder / "Pale.REC";
    ScriptedPrompts prompts;
    Program program;
};

TEST_F(Documents, ComeFromTheFileThatIsChosen) {
    program.folders.save_automatically = 1;
    set_folder(program.folders, FolderKind::recipes, "/away");
    ScriptedFiles files({std::nullopt, pale});
    EXPECT_FALSE(choose_and_open(program, DocumentKind::recipe, files, prompts));
    EXPECT_TRUE(program.document.recipe.title.empty() && program.document.water_to_grain == 1.0F);
    EXPECT_TRUE(choose_and_open(program, DocumentKind::recipe, files, prompts));
    EXPECT_EQ(files.offers[1], "open Recipe File (*.rec)|*.rec /away/  rec");
    EXPECT_TRUE(program.document.recipe.title.view() == "Pale" && program.document.water_to_grain == 0.0F);
    EXPECT_TRUE(program.document.file.path == pale && program.document.file.loaded_from_file);
    EXPECT_EQ(folder_path(program.folders, FolderKind::recipes), folder.path());
}

TEST_F(Documents, KeepTheScheduleKindInForceWhenNew) {
    program.document.recipe.mash_flags = 1;
    new_recipe(program);
    EXPECT_TRUE(has_complex_schedule(program.document.recipe)) << "that of the recipe before";
    take_usual_schedule(program.document, program.settings);
    new_recipe(program);
    EXPECT_FALSE(has_complex_schedule(program.document.recipe));
}

TEST_F(Documents, MakeRoomForANamedFileIfTheirUserLetsThemGo) {
    std::string log;
    const auto window = std::make_shared<FakeTool>(log, 1);
    const auto other = folder / "other.rec";
    save_atomically(other, *read_file(pale));
    ASSERT_TRUE(open_document_file(program, pale, prompts));
    opened(program.tools, command::open_recipe, window);
    EXPECT_FALSE(open_document_file(program, pale, prompts));
    EXPECT_EQ(std::exchange(log, ""), "1 forward ") << "it is the open one";
    window->closes = false;
    EXPECT_FALSE(open_document_file(program, other, prompts));
    EXPECT_EQ(std::exchange(log, ""), "1 close ") << "its user stays";
    closed(program.tools, command::open_recipe);
    EXPECT_TRUE(open_document_file(program, other, prompts));
}

TEST_F(Documents, StayWhereAFileCannotBeOpened) {
    ASSERT_TRUE(open_document_file(program, pale, prompts));
    const auto before = program.document.recipe;
    auto damaged = *read_file(pale);
    damaged[88] = std::byte{0xFF}; // a negative number of hops
    save_atomically(folder / "damaged.rec", damaged);
    expect_fault("none.brw", "File Not Found!");
    expect_fault("damaged.rec", "damaged.rec is damaged or is no Wortlex document; it was not opened.");
    expect_fault("notes.txt", "notes.txt is neither a recipe (.rec) nor a brewing session (.brw).");
    EXPECT_TRUE(program.document.recipe == before && program.document.file.path == pale);
    EXPECT_THAT(LoadRecent(folder.path()), ElementsAre(pale));
    save_atomically(folder / "short.rec", *read_file(pale, 5000));
    expect_fault("short.rec", "short.rec ended early; what is missing was left empty.", Icon::warning);
    EXPECT_TRUE(program.document.file.incomplete);
}

TEST_F(Documents, WarnOfTheOtherEfficiencyMethod) {
    using enum EfficiencyMode;
    const auto check = [&](std::uint8_t of_file, EfficiencyMode ours) {
        program.document.recipe.file_efficiency_mode = of_file;
        program.settings.efficiency_mode = ours;
        return method_check_on_load(program.document.recipe, program.settings, DocumentKind::recipe)
            .value_or("");
    };
    EXPECT_EQ(check(1, method_1) + check(0, method_1_yield) + check(2, method_2), "");
    EXPECT_THAT(check(2, method_1_yield),
                testing::MatchesRegex("The recipe you are about to load was (.|\n)*potential. than your "
                                      "current system .by maximum potential of grain.[.](.|\n)*Method #2"));
    EXPECT_THAT(check(0, method_2), testing::EndsWith("Method #1"));
    EXPECT_THAT(*method_check_on_save(program.document.recipe, program.settings, DocumentKind::session),
                testing::StartsWith("The brewing session you are about to save was created using"));
}

TEST_F(Documents, AreRememberedNewestFirst) {
    RecentDocuments many = {"/b/Pale.rec", "", "/tab\there.rec", "/b/Pale.rec"};
    for (int i = 0; i < 9; ++i) many.push_back("/a/" + std::to_string(i) + ".rec");
    SaveRecent(folder.path(), many);
    auto recent = LoadRecent(folder.path());
    EXPECT_EQ(std::pair(recent.size(), recent.back()), std::pair(recent_limit, std::string("/a/7.rec")));
    for (const auto* path : {"/a/7.rec", "/c/Pale.rec", "/new\nline.rec"}) remember(recent, path);
    EXPECT_EQ(std::pair(recent.size(), recent.back()), std::pair(recent_limit, std::string("/a/5.rec")));
    remember(recent, "/a/Pale.brw");
    EXPECT_EQ(recent.size(), recent_limit + 1) << "sessions have a list of their own";
    recent.erase(recent.begin());
    EXPECT_EQ(recent_name(recent, 0) + recent_name(recent, 1), "Pale.rec (/c)7.rec");
    SaveRecent(folder.path(), {std::string(65536, 'a')});
    EXPECT_TRUE(LoadRecent(folder.path()).empty());
}

TEST_F(Documents, OfABreweryMoveWithIt) {
    SaveRecent(folder.path(), {folder / "Recipes/Pale.rec", "/usb/Stout.rec"});
    const TemporaryFolder moved;
    std::filesystem::copy(folder / "WlxRecent.txt", moved / "WlxRecent.txt");
    EXPECT_THAT(LoadRecent(moved.path()), ElementsAre(moved / "Recipes/Pale.rec", "/usb/Stout.rec"));
}

} // namespace
} // namespace wortlex
