#include "documents/under_work.h"
#include "documents/work/document_saving.h"
#include "records/documents/document_files.h"
#include "support/scripted_files.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <fstream>

namespace wortlex {
namespace {

// A recipe under work that is about to be saved.
struct SavingDesk : UnderWork {
    TemporaryFolder folder;
    DocumentFile file;
    DocumentImage saved;
    ScriptedPrompts prompts;

    SavingDesk() {
        document.title.assign("Mild");
        start_editing(editor, {});
        saved = snapshot_document(editor.open, SnapshotScope::with_schedule);
    }
    std::string path(const std::string& name) const { return folder / name; }
    bool save(std::deque<std::optional<std::string>> chosen, SaveAs save_as = SaveAs::no) {
        ScriptedFiles files(std::move(chosen));
        auto saving = with(files);
        const bool done = wortlex::save(saving, save_as);
        offers = files.offers;
        return done;
    }
    bool leave(std::deque<std::optional<std::string>> chosen = {}) {
        ScriptedFiles files(std::move(chosen));
        auto saving = with(files);
        return may_leave(saving);
    }
    DocumentSaving with(Files& files) { return {editor, file, saved, files, prompts, "recipes/"}; }
    bool modified() const { return is_modified(editor.open, saved, file); }

    std::vector<std::string> offers;
};

TEST(DocumentSaving, ANewRecipeIsOfferedItsTitle) {
    SavingDesk desk;
    set_title(desk.editor, "Best Bitter 1.2");
    EXPECT_TRUE(desk.modified());
    ASSERT_TRUE(desk.save({desk.path("Best Bitter.rec")}));
    EXPECT_THAT(desk.offers,
                testing::ElementsAre("save Recipe File (*.rec)|*.rec recipes/ Best Bitter 1.2.rec rec"));
    EXPECT_FALSE(desk.modified());
    BrewDocument loaded;
    ASSERT_EQ(load_recipe(desk.path("Best Bitter.rec"), loaded, desk.settings), LoadResult::loaded);
    EXPECT_EQ(loaded.title.view(), "Best Bitter 1.2");
    set_title(desk.editor, "Ordinary Bitter");
    EXPECT_TRUE(desk.save({})) << "it has a file now: nothing is asked";
    EXPECT_TRUE(desk.save({desk.path("Copy.rec")}, SaveAs::yes));
    EXPECT_EQ(desk.file.path, desk.path("Copy.rec"));
}

TEST(DocumentSaving, LeavingTheDialogSavesNothing) {
    SavingDesk desk;
    EXPECT_FALSE(desk.save({std::nullopt}));
    EXPECT_EQ(desk.file.path, "");
    EXPECT_EQ(desk.document.title.view(), "Mild") << "only the name that it was offered for is gone";
    desk.file = {.path = desk.path("Mild.rec"), .loaded_from_file = true};
    EXPECT_FALSE(desk.save({std::nullopt}, SaveAs::yes));
    EXPECT_EQ(desk.document.title.view(), "Mild");
    EXPECT_EQ(desk.file.path, desk.path("Mild.rec"));
    desk.document.title.assign("");
    EXPECT_TRUE(desk.save({desk.path("Nameless.rec")})) << "without a title the name is asked for";
    desk.document.title.assign("Cut");
    desk.file.incomplete = true;
    EXPECT_FALSE(desk.save({std::nullopt})) << "and over a file that had ended early";
}

TEST(DocumentSaving, TitlesMustMakeFileNames) {
    SavingDesk desk;
    set_title(desk.editor, "Half/Half");
    desk.prompts.expect("tell",
                        "The recipe name contains invalid characters used to build the filename!\nInvalid "
                        "characters include  \\   /   :   |   *\n\nRecipe names must not contain these "
                        "characters.",
                        {}, Icon::warning, "Wortlex Warning");
    EXPECT_FALSE(desk.save({}));
}

TEST(DocumentSaving, TheMethodIsSettledFirst) {
    SavingDesk desk;
    desk.document.file_efficiency_mode = 2;
    const std::string question =
        "The recipe you are about to save was created using a different method for calculating efficiency "
        "(by grain weight and sucrose potential) than your current system (by maximum potential of "
        "grain).\n\nPlease be aware of this difference and that the predicted gravity here may be different "
        "than what the author targeted.\n\nDo you want to reset the recipe using your current Efficiency "
        "Method?\n";
    desk.prompts.expect_yes_no(question, Answer::no);
    EXPECT_TRUE(desk.save({desk.path("Mild.rec")}));
    EXPECT_EQ(desk.document.file_efficiency_mode, 2);
    desk.prompts.expect_yes_no(question, Answer::yes);
    EXPECT_TRUE(desk.save({}));
    EXPECT_EQ(desk.document.file_efficiency_mode, 0);
    EXPECT_FALSE(desk.modified()) << "the mark of a save is no change";
}

TEST(DocumentSaving, AFileOfAnotherHandIsNotOverwritten) {
    SavingDesk desk;
    ASSERT_TRUE(desk.save({desk.path("Mild.rec")}));
    std::ofstream(desk.path("Mild.rec"), std::ios::app) << "more";
    set_title(desk.editor, "Dark Mild");
    const auto question =
        "Mild.rec has been changed by another program since it was opened.\nDo you want to overwrite it?";
    desk.prompts.expect("yes/no", question, Answer::no, Icon::warning);
    EXPECT_FALSE(desk.save({}));
    EXPECT_TRUE(desk.modified());
    desk.prompts.expect("yes/no", question, Answer::yes, Icon::warning);
    EXPECT_TRUE(desk.save({}));
    std::filesystem::remove(desk.path("Mild.rec"));
    EXPECT_TRUE(desk.save({})) << "a file that is gone is written again";
}

TEST(DocumentSaving, NothingIsLeftUnsavedUnasked) {
    SavingDesk desk;
    EXPECT_TRUE(desk.leave()) << "nothing has changed";
    set_title(desk.editor, "Porter");
    for (const auto& [answer, may] : {std::pair(Answer::cancel, false), std::pair(Answer::no, true)}) {
        desk.prompts.expect_save("recipe", answer);
        EXPECT_EQ(desk.leave(), may);
    }
    desk.prompts.expect_save("recipe", Answer::yes);
    EXPECT_FALSE(desk.leave({std::nullopt})) << "the save was left";
    set_title(desk.editor, "Porter");
    desk.prompts.expect_save("recipe", Answer::yes);
    EXPECT_TRUE(desk.leave({desk.path("Porter.rec")}));
    desk.file.recovered = true;
    EXPECT_TRUE(desk.modified()) << "unsaved work of another run, however it looks";
}

} // namespace
} // namespace wortlex
