#include "base/open_file.h"
#include "documents/brewing.h"
#include "documents/opening.h"
#include "documents/work/document_saving.h"
#include "program/export_report.h"
#include "program/recovery.h"
#include "reports/print_options.h"
#include "support/file_content.h"
#include "support/form_user.h"
#include "support/recording_clipboard.h"
#include "support/recording_desk.h"
#include "support/recording_surface.h"
#include "support/started_program.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/file.h>

namespace wortlex {
namespace {

// A program whose live recipe is worth keeping.
struct Kitchen : StartedProgram {
    Kitchen() {
        program.document.recipe.title.assign("Alt");
        program.document.recipe.file_efficiency_mode = 2;
        program.document.recipe.mash_flags = 1;
    }
    bool keep() {
        return KeepWork(program.data_folder, image_of(live_document(program)), program.document.file);
    }
};

TEST(Recovery, BringsBackWhatABrokenRunLeft) {
    Kitchen run;
    write_content(run.folder / "Alt.rec", "old");
    run.program.document.file = {
        .path = run.folder / "Alt.rec", .loaded_from_file = true, .stamp = stamp_of(run.folder / "Alt.rec")};
    ASSERT_TRUE(run.keep());
    EXPECT_EQ(run.program.document.recipe.mash_flags, 1) << "keeping is not saving";
    const auto kept = run.program.document.file.stamp;

    new_recipe(run.program);
    run.prompts.expect_unsaved_work("Alt.rec", Answer::yes);
    EXPECT_TRUE(offer_work(run.program, run.prompts));
    EXPECT_EQ(run.program.document.recipe.title.view(), "Alt");
    EXPECT_EQ(run.program.document.recipe.file_efficiency_mode, 2);
    EXPECT_EQ(run.program.document.recipe.mash_flags, 1);
    EXPECT_TRUE(run.program.document.file.recovered);
    EXPECT_EQ(run.program.document.file.path, run.folder / "Alt.rec");
    EXPECT_EQ(run.program.document.file.stamp, kept);

    run.prompts.expect_unsaved_work("Alt.rec", Answer::cancel);
    EXPECT_FALSE(offer_work(run.program, run.prompts));
    run.keep();
    DropWork(run.folder.path()); // a recipe was opened and left meanwhile
    run.prompts.expect_unsaved_work("Alt.rec", Answer::no);
    EXPECT_FALSE(offer_work(run.program, run.prompts));
    EXPECT_FALSE(offer_work(run.program, run.prompts)) << "discarded: nothing more to ask";
}

TEST(Recovery, WorkThatIsPutAsideOutlivesTheNext) {
    Kitchen run;
    for (const std::string name : {"Alt", "Bock"}) {
        run.program.document.recipe.title.assign(name);
        run.keep();
        run.prompts.expect_unsaved_work(name, Answer::cancel);
        if (name == "Bock") run.prompts.expect_unsaved_work("Alt", Answer::cancel);
        EXPECT_FALSE(offer_work(run.program, run.prompts));
    }
    run.prompts.expect_unsaved_work("Alt", Answer::yes);
    EXPECT_TRUE(offer_work(run.program, run.prompts));
    EXPECT_EQ(run.program.document.recipe.title.view(), "Alt");
    DropWork(run.folder.path()); // saved
    run.prompts.expect_unsaved_work("Bock", Answer::no);
    EXPECT_FALSE(offer_work(run.program, run.prompts));
}

// A session that was saved, opened again and is under work.
struct BrewDay : Kitchen {
    LiveDocument& live = program.document;
    std::string path = folder / "Alt.brw";
    RecipeEditor editor{opened(), {}, {}};
    DocumentImage saved;

    BrewDay() {
        recalculate_opened(editor.open);
        start_editing(editor, {});
        saved = snapshot_document(editor.open, SnapshotScope::with_schedule);
    }
    OpenDocument opened() {
        new_session(program, {5, 3, 2001});
        live.recipe.title.assign("Alt");
        live.recipe.malts.resize(2);
        live.session.head_brewer.assign("Ada");
        auto image = image_of(live_document(program));
        EXPECT_TRUE(save_document(path, image, prompts));
        new_recipe(program);
        EXPECT_TRUE(open_document_file(program, path, prompts));
        return live_document(program);
    }
    void name_brewer(const char* name) {
        edit(editor, "Brewer", [&] { live.session.head_brewer.assign(name); });
    }
    bool is_modified() const { return wortlex::is_modified(editor.open, saved, live.file); }
};

TEST(BrewDay, TakesBackWhatItsLogAndWaterWere) {
    BrewDay day;
    const auto before = image_of(day.editor.open);
    const float needed = day.live.water.needed;
    EXPECT_FALSE(day.is_modified());
    day.name_brewer("Bo");
    edit(day.editor, "Top Up", [&] {
        day.live.session.water_needs.top_up += 1;
        refresh_water(day.editor.open);
    });
    EXPECT_EQ(day.live.water.needed, needed + 1);
    undo(day.editor);
    EXPECT_EQ(day.live.water.needed, needed);
    EXPECT_TRUE(day.is_modified()) << "the brewer's name";
    undo(day.editor);
    EXPECT_TRUE(image_of(day.editor.open) == before && !day.is_modified());
    redo(day.editor);
    EXPECT_EQ(day.live.session.head_brewer.view(), "Bo");
}

TEST(BrewDay, IsSavedAndRecoveredAsASession) {
    BrewDay day;
    ScriptedFiles files({day.folder / "Copy.brw"});
    DocumentSaving saving{day.editor, day.live.file, day.saved, files, day.prompts, "sessions/"};
    day.name_brewer("Bo");
    day.prompts.expect_save("brew session entry", Answer::yes);
    EXPECT_TRUE(may_leave(saving) && !day.is_modified());
    EXPECT_EQ(*read_file(day.path), session_bytes(day.live.recipe, day.live.session));
    EXPECT_TRUE(save(saving, SaveAs::yes));
    const auto folder = std::filesystem::path(day.path).parent_path().string();
    EXPECT_THAT(files.offers,
                testing::ElementsAre("save Brew File (*.brw)|*.brw " + folder + " Alt.brw brw"));
    day.name_brewer("Cy");
    ASSERT_TRUE(day.keep());
    new_recipe(day.program);
    day.live.session = {};
    day.prompts.expect_unsaved_work("Copy.brw", Answer::yes);
    EXPECT_TRUE(offer_work(day.program, day.prompts));
    EXPECT_EQ(live_document(day.program).session, &day.live.session);
    EXPECT_EQ(day.live.session.head_brewer.view(), "Cy");
    EXPECT_TRUE(day.live.file.recovered && day.live.file.path == day.folder / "Copy.brw");
}

TEST(Recovery, ClearsAwayOnlyWhatKilledSavesLeft) {
    Kitchen run;
    for (const auto* const file :
         {".wortlex-a1B2c3", ".wortlex.lock", ".wortlex-notes.txt", ".wortlex-d4E5f6"})
        write_content(run.folder / file, "half, ours, the brewer's, and another program's, at it");
    const OpenFile other(::open((run.folder / ".wortlex-d4E5f6").c_str(), O_RDONLY));
    ASSERT_EQ(::flock(other.get(), LOCK_EX), 0);
    const auto before = run.folder.entries();
    ASSERT_TRUE(save_atomically(run.folder / "Alt.rec", {}));
    EXPECT_EQ(run.folder.entries(), before) << "one comes, one goes";
    EXPECT_FALSE(std::filesystem::exists(run.folder / ".wortlex-a1B2c3"));
}

TEST(Recovery, TrustsNoFile) {
    Kitchen run;
    const auto path = run.folder / "WlxWork.rcv";
    run.keep();
    const auto whole = *read_file(path);
    for (std::size_t length = 0; length < whole.size(); length += length < 200 ? 1 : 997) {
        save_atomically(path, ByteView(whole).first(length));
        if (const auto work = ReadWork(path)) restore_work(run.program.document, *work, run.program.settings);
    }
    write_content(path, "Wortlex unsaved recipe 1\nx.rec\n9 junk");
    EXPECT_EQ(ReadWork(path), std::nullopt);
    for (const std::string number : {"1", "2"}) {
        save_atomically(path, Bytes(10000, std::byte{0xFF}));
        run.prompts.expect_tell("Unsaved work of an earlier run is damaged and cannot be opened.\nIt is kept "
                                "as WlxWork-" +
                                    number + ".damaged in the brewery folder.",
                                Icon::warning);
        EXPECT_FALSE(offer_work(run.program, run.prompts));
        EXPECT_EQ(read_file(run.folder / "WlxWork-" + number + ".damaged"), Bytes(10000, std::byte{0xFF}));
    }
    EXPECT_FALSE(offer_work(run.program, run.prompts)) << "told, and not again";
}

// The four ways out of a recipe's report.
struct Exports : Kitchen {
    RecordingPageDesk pages;
    RecordingClipboard clipboard;
    RecordingEasel easel;
    FakePictures pictures;

    std::vector<std::string> send(ReportForm form, std::deque<std::optional<std::string>> paths = {}) {
        set_report_form(program.recipe_print, form);
        ScriptedFiles chosen(std::move(paths));
        export_document({program, prompts, chosen, pages, clipboard, easel, pictures}, {},
                        [](ReportOutput, ReportForm) { return true; });
        return chosen.offers;
    }
};

TEST(ExportReport, ReachesPaperFilesAndClipboard) {
    Exports exports;
    exports.program.document.recipe.title.assign("What is it? 1/2");
    const auto text = exports.folder / "a.txt";
    const auto html = exports.folder / "a.html";
    EXPECT_THAT(exports.send(ReportForm::text_file, {text}),
                testing::ElementsAre(testing::HasSubstr("What is it? 1_2.txt txt")));
    EXPECT_THAT(exports.send(ReportForm::html_file, {html}),
                testing::ElementsAre(testing::HasSubstr("What_is_it__1_2.html html")));
    exports.send(ReportForm::clipboard);
    exports.send(ReportForm::print);
    EXPECT_EQ(exports.clipboard.texts, std::vector{content_of(text)}) << "the same bytes";
    EXPECT_THAT(content_of(html), testing::HasSubstr("<TITLE>A Wortlex Recipe - What is it? 1/2</TITLE>"));
    ASSERT_EQ(exports.pages.jobs.size(), 1U);
    EXPECT_EQ(exports.pages.scales, std::vector{exports.program.settings.printer_scale});
    EXPECT_EQ(exports.send(ReportForm::text_file, {std::nullopt}).size(), 1U) << "left: nothing is written";
    exports.program.document.file.path = "a/Saved.rec";
    exports.send(ReportForm::print);
    exports.program.recipe_print[PrintSection::competition_form] = 1;
    exports.send(ReportForm::print);
    EXPECT_EQ(exports.pages.file_names,
              (std::vector<std::string>{"What is it? 1_2", "Saved", "Comp_What is it? 1_2"}));
}

TEST(ExportReport, ThePictureOfTheMashStandsBesideItsPage) {
    Exports exports;
    auto& program = exports.program;
    program.document.recipe.malts = {malt(MaltType::grain, 0, 10)};
    program.document.recipe.mash_flags = 0; // the simple schedule
    program.document.recipe.simple_mash.saccharification = {152, 60};
    program.recipe_print[PrintOption::solid_fill] = 1;
    program.recipe_print[PrintSection::mash_graph] = 1;
    program.reminders.mash_chart_name = 0;
    const auto html = exports.folder / "My bock.v2.html";
    exports.send(ReportForm::html_file, {html});
    EXPECT_THAT(content_of(html),
                testing::HasSubstr(R"(<IMG SRC="My%20bock_mash.jpg" ALT="Mash Schedule" BORDER="0">)"));
    const auto& picture = exports.pictures.files.at(exports.folder / "My bock_mash.jpg");
    EXPECT_EQ((Extent{picture.width, picture.height}), (Extent{401, 351}));
    EXPECT_THAT(exports.easel.surface.lines,
                testing::Contains(testing::EndsWith(" - Saccharification Rest")));
    program.recipe_print[PrintSection::mash_graph] = 0;
    exports.send(ReportForm::html_file, {html});
    EXPECT_THAT(content_of(html), testing::Not(testing::HasSubstr("IMG")));
}

TEST(PrintOptions, ChartsAreForPaperAndPagesWithAMash) {
    PrintSelection selection;
    selection.sections.fill(0);
    Form form;
    print_options_form(form, selection, {.has_mash = true}, {});
    const auto enabled = [&form] {
        std::string keys;
        for (const auto* const key : {"mash_graph", "solid_fill", "scale"})
            if (form.row(key).is_enabled()) keys += std::string(key) + " ";
        return keys;
    };
    EXPECT_EQ(enabled(), "mash_graph ");
    selection[PrintSection::mash_graph] = 1;
    EXPECT_EQ(enabled(), "mash_graph solid_fill scale ");
    set_report_form(selection, ReportForm::html_file);
    EXPECT_EQ(enabled(), "mash_graph solid_fill scale ");
    set_report_form(selection, ReportForm::clipboard);
    EXPECT_EQ(enabled(), "");
}

TEST(PrintOptions, OfferNothingThatTheSessionLacks) {
    PrintSelection selection;
    selection.sections.fill(0);
    SessionDocument session;
    const auto disabled = [&] {
        Form form;
        print_options_form(form, selection, printed_document(DocumentKind::session, {}, session), {});
        std::string keys;
        for (const auto* const key : {"mash", "bottling", "session_notes", "water_graph"})
            if (!form.row(key).is_enabled())
                keys += std::string(key) + ": " + form.row(key).reason_text() + "\n";
        return keys;
    };
    EXPECT_EQ(disabled(), "mash: There is no grain to mash\nsession_notes: The session has no notes\n"
                          "water_graph: Your water has no name yet\n");
    session.session_notes[4].assign("of a page that is not there");
    session.source_water.name.assign("Well");
    selection[PrintSection::competition_form] = 1;
    EXPECT_THAT(disabled(), testing::HasSubstr("bottling: No vessel is told to be filled\n"));
    session.session_notes[3].assign("Stuck");
    session.bottling.used[1] = 1;
    selection[PrintSection::competition_form] = 0;
    EXPECT_EQ(disabled(), "mash: There is no grain to mash\n");
}

TEST(PrintOptions, CanBecomeTheDefaults) {
    PrintSelection selection;
    Form form;
    print_options_form(form, selection, {.has_mash = false}, {});
    EXPECT_FALSE(form.row("mash").is_enabled()) << "there is nothing to mash";
    check(form, "style", true);
    EXPECT_EQ(selection[PrintSection::recipe_style_guidelines], 1);
    Kitchen run;
    run.prompts.expect_yes_no("Really save these settings as the recipe formulation print defaults?",
                              Answer::yes);
    save_as_default(DocumentKind::recipe, selection, run.folder.path(), run.prompts);
    EXPECT_EQ(LoadPrintSelection(run.folder.path(), DocumentKind::recipe, 0.5F), selection);
}

} // namespace
} // namespace wortlex
