#include "program/export_report.h"
#include "program/recovery.h"
#include "program/start.h"
#include "reports/print_options.h"
#include "support/desk.h"
#include "support/recording_desk.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <fstream>

namespace wortlex {
namespace {

// A program whose live recipe is worth keeping.
struct Kitchen {
    TemporaryFolder folder;
    ScriptedPrompts prompts;
    Program program;

    Kitchen() {
        SaveSystemFiles(folder.path(), {WriteDefaultSettings(), {}, true});
        EXPECT_TRUE(start_core(program, folder.path(), prompts));
        program.document.title.assign("Alt");
        program.document.file_efficiency_mode = 2;
        program.document.mash_flags = 1;
    }
};

constexpr const char* question_about_file =
    "Wortlex ended before your work on Alt.rec was saved.\nDo you want to open it as it was? No discards it, "
    "Cancel asks again at the next start.";

TEST(Recovery, BringsBackWhatABrokenRunLeft) {
    Kitchen run;
    std::ofstream(run.folder / "Alt.rec") << "old";
    run.program.recipe_file = {
        .path = run.folder / "Alt.rec", .loaded_from_file = true, .stamp = stamp_of(run.folder / "Alt.rec")};
    ASSERT_TRUE(KeepWork(run.program));
    EXPECT_EQ(run.program.document.mash_flags, 1) << "keeping is not saving";
    const auto kept = run.program.recipe_file.stamp;

    new_recipe(run.program);
    run.prompts.expect("yes/no/cancel", question_about_file, Answer::yes, Icon::question);
    EXPECT_TRUE(offer_work(run.program, run.prompts));
    EXPECT_EQ(run.program.document.title.view(), "Alt");
    EXPECT_EQ(run.program.document.file_efficiency_mode, 2);
    EXPECT_EQ(run.program.document.mash_flags, 1);
    EXPECT_TRUE(run.program.recipe_file.recovered);
    EXPECT_EQ(run.program.recipe_file.path, run.folder / "Alt.rec");
    EXPECT_EQ(run.program.recipe_file.stamp, kept);

    run.prompts.expect("yes/no/cancel", question_about_file, Answer::cancel, Icon::question);
    EXPECT_FALSE(offer_work(run.program, run.prompts));
    KeepWork(run.program);
    DropWork(run.folder.path()); // a recipe was opened and left meanwhile
    run.prompts.expect("yes/no/cancel", question_about_file, Answer::no, Icon::question);
    EXPECT_FALSE(offer_work(run.program, run.prompts));
    EXPECT_FALSE(offer_work(run.program, run.prompts)) << "discarded: nothing more to ask";
}

TEST(Recovery, ClearsAwayOnlyWhatKilledSavesLeft) {
    Kitchen run;
    std::ofstream(run.folder / ".wortlex-a1B2c3") << "half";
    std::ofstream(run.folder / ".wortlex.lock") << "ours";
    std::ofstream(run.folder / ".wortlex-notes.txt") << "the brewer's";
    const auto before = run.folder.entries();
    remove_broken_saves(run.folder.path());
    EXPECT_EQ(run.folder.entries(), before - 1);
    EXPECT_FALSE(std::filesystem::exists(run.folder / ".wortlex-a1B2c3"));
}

TEST(Recovery, TrustsNoFile) {
    Kitchen run;
    const auto path = run.folder / "WlxWork.rcv";
    KeepWork(run.program);
    const auto whole = *read_file(path);
    for (std::size_t length = 0; length < whole.size(); length += length < 200 ? 1 : 997) {
        save_atomically(path, ByteView(whole).first(length));
        if (const auto work = FindWork(run.folder.path())) restore_work(run.program, *work);
    }
    std::ofstream(path) << "Wortlex unsaved recipe 1\nx.rec\n9 junk";
    EXPECT_EQ(FindWork(run.folder.path()), std::nullopt);
    save_atomically(path, Bytes(10000, std::byte{0xFF}));
    EXPECT_FALSE(offer_work(run.program, run.prompts));
}

// The four ways out of a recipe's report.
struct Exports : Kitchen {
    RecordingPageDesk pages;
    RecordingClipboard clipboard;

    std::vector<std::string> send(ReportForm form, std::deque<std::optional<std::string>> paths = {}) {
        set_report_form(program.recipe_print, form);
        ScriptedFiles files(std::move(paths));
        export_recipe({program, prompts, files, pages, clipboard}, {});
        return files.offers;
    }
    static std::string content(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
};

TEST(ExportReport, ReachesPaperFilesAndClipboard) {
    Exports exports;
    exports.program.document.title.assign("What is it? 1/2");
    const auto text = exports.folder / "a.txt";
    const auto html = exports.folder / "a.html";
    EXPECT_THAT(exports.send(ReportForm::text_file, {text}),
                testing::ElementsAre(testing::HasSubstr("What is it? 1_2.txt txt")));
    EXPECT_THAT(exports.send(ReportForm::html_file, {html}),
                testing::ElementsAre(testing::HasSubstr("What_is_it__1_2.html html")));
    exports.send(ReportForm::clipboard);
    exports.send(ReportForm::print);
    EXPECT_EQ(exports.clipboard.texts, std::vector{exports.content(text)}) << "the same bytes";
    EXPECT_THAT(exports.content(html),
                testing::HasSubstr("<TITLE>A Wortlex Recipe - What is it? 1/2</TITLE>"));
    ASSERT_EQ(exports.pages.jobs.size(), 1U);
    EXPECT_EQ(exports.pages.scales, std::vector{exports.program.settings.printer_scale});
    EXPECT_EQ(exports.send(ReportForm::text_file, {std::nullopt}).size(), 1U) << "left: nothing is written";
}

TEST(PrintOptions, KeepTheOutputInItsFlags) {
    PrintSelection selection;
    for (const auto form :
         {ReportForm::html_file, ReportForm::clipboard, ReportForm::text_file, ReportForm::print}) {
        set_report_form(selection, form);
        EXPECT_EQ(report_form(selection), form);
    }
    Form form;
    recipe_print_form(form, selection, false, {});
    EXPECT_FALSE(form.row("mash").is_enabled()) << "there is nothing to mash";
    form.check(dynamic_cast<CheckRow&>(form.row("style")), true);
    EXPECT_EQ(selection[PrintSection::recipe_style_guidelines], 1);
    Kitchen run;
    run.prompts.expect("yes/no", "Really save these settings as the recipe formulation print defaults?",
                       Answer::yes, Icon::question);
    save_as_default(selection, run.folder.path(), run.prompts);
    EXPECT_EQ(LoadPrintSelection(run.folder.path(), DocumentKind::recipe, 0.5F), selection);
}

} // namespace
} // namespace wortlex
