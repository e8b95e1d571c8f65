#include "program/recovery.h"
#include "support/kitchen.h"

#include <QDialogButtonBox>
#include <QTreeView>

namespace wortlex {
namespace {

TEST(RecipeWindow, AWholeRecipeByKeyboard) {
    const auto path = std::filesystem::temp_directory_path() / "Kitchen Blonde.rec";
    Kitchen kitchen;
    kitchen.files.add(path.string());
    kitchen.begin();
    kitchen.press(Qt::Key_R, Qt::AltModifier);
    kitchen.type("Kitchen Blonde");
    kitchen.pick_by(Qt::Key_Y, Qt::AltModifier);
    kitchen.press(Qt::Key_B, Qt::AltModifier);
    kitchen.type("6");
    kitchen.tab_to("malts");
    kitchen.pick_by(Qt::Key_Insert);
    kitchen.tab_to("malts");
    for (int i = 0; i < 9; ++i) kitchen.press(Qt::Key_Plus);
    kitchen.tab_to("hops");
    kitchen.pick_by(Qt::Key_Insert);
    kitchen.on_page(Qt::Key_A, [&] {
        kitchen.pick_by(Qt::Key_Y, Qt::AltModifier);
        kitchen.pick_by(Qt::Key_W, Qt::AltModifier);
    });
    kitchen.on_page(Qt::Key_N, [&] {
        kitchen.pick_by(Qt::Key_N, Qt::AltModifier);
        kitchen.press(Qt::Key_O, Qt::AltModifier);
        kitchen.type("Simple.");
    });
    kitchen.on_page(Qt::Key_M, [&] {
        kitchen.tab_to("saccharification_temperature");
        kitchen.type("152");
    });
    EXPECT_EQ(kitchen.recipe->windowTitle(), "Kitchen Blonde* - Wortlex Recipe Formulation");
    kitchen.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(kitchen.recipe->windowTitle(), "Kitchen Blonde.rec - Wortlex Recipe Formulation");
    const auto sg = text_of(*kitchen.recipe, "sg");
    kitchen.press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(any_open(kitchen.program.tools));

    BrewDocument loaded;
    ASSERT_EQ(load_recipe(path.string(), loaded, kitchen.program.settings), LoadResult::loaded);
    EXPECT_EQ(loaded.title.view(), "Kitchen Blonde");
    EXPECT_EQ(loaded.style.name.view(), "Blonde Ale");
    EXPECT_EQ(loaded.batch_size, 6);
    ASSERT_EQ(loaded.malts.size(), 1U);
    EXPECT_FLOAT_EQ(loaded.malts[0].amount, kitchen.program.settings.grain_increment * 10);
    ASSERT_EQ(loaded.hops.size(), 1U);
    EXPECT_EQ(loaded.yeast.record.name.view(), "House Yeast");
    EXPECT_EQ(loaded.water.name.view(), "Soft Water");
    ASSERT_EQ(loaded.extras.size(), 1U);
    EXPECT_EQ(loaded.notes.view(), "Simple.");
    EXPECT_EQ(loaded.simple_mash.saccharification.temperature, 152);

    kitchen.main->open_file(path.string());
    EXPECT_EQ(text_of(*open_recipe_window(), "sg"), sg);
    open_recipe_window()->close();
    std::filesystem::remove(path);
}

TEST(RecipeWindow, IsWrittenInItsListsWithoutADialog) {
    Kitchen kitchen;
    kitchen.begin();
    const auto& recipe = kitchen.program.document.recipe;
    kitchen.press(Qt::Key_1, Qt::ControlModifier);
    kitchen.type("9 lb pale");
    kitchen.press(Qt::Key_Return);
    ASSERT_EQ(recipe.malts.size(), 1U);
    EXPECT_EQ(recipe.malts[0].amount, 9);
    kitchen.type("2 lb rye");
    kitchen.press(Qt::Key_Return);
    EXPECT_EQ(text_of(*kitchen.recipe, "malt_entry"), "2 lb rye") << "nothing is lost where nothing is found";
    EXPECT_EQ(kitchen.recipe->findChild<QWidget*>("range_hint")->accessibleName(), "Nothing found");
    kitchen.press(Qt::Key_2, Qt::ControlModifier);
    kitchen.type("2 oz casc 15");
    kitchen.press(Qt::Key_Return);
    ASSERT_EQ(recipe.hops.size(), 1U);
    EXPECT_EQ(recipe.hops[0].boil_time, 15);
    kitchen.press(Qt::Key_3, Qt::ControlModifier);
    kitchen.type("house");
    kitchen.press(Qt::Key_Return);
    EXPECT_EQ(text_of(*kitchen.recipe, "yeast_line"), "House Yeast");

    kitchen.press(Qt::Key_1, Qt::AltModifier);
    kitchen.type("1"); // opens the cell
    kitchen.type("0 stone");
    kitchen.press(Qt::Key_Return);
    EXPECT_EQ(recipe.malts[0].amount, 9) << "what is not understood stays in its field";
    for (int i = 0; i < 5; ++i) kitchen.press(Qt::Key_Backspace);
    kitchen.type("lb");
    kitchen.press(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return recipe.malts[0].amount == 10; }));
    kitchen.press(Qt::Key_F2);
    kitchen.type("7");
    kitchen.press(Qt::Key_Escape);
    EXPECT_EQ(recipe.malts[0].amount, 10);
    kitchen.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(recipe.malts[0].amount, 9) << "one step";
    Kitchen::activate(kitchen.recipe); // which the list of proposals was before
    auto& list = *kitchen.recipe->findChild<QTreeView*>("malts");
    const auto cell = list.visualRect(list.model()->index(0, 4)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, cell);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, cell);
    kitchen.type("8");
    kitchen.press(Qt::Key_Tab);
    EXPECT_EQ(recipe.malts[0].amount, 8);
    kitchen.press(Qt::Key_Escape); // of the next cell
    for (int i = 0; i < 2; ++i) kitchen.prompts.expect_save("recipe", Answer::no);
    kitchen.press(Qt::Key_N, Qt::ControlModifier);
    kitchen.type("Next");
    EXPECT_EQ(text_of(*kitchen.recipe, "title"), "Next") << "a new recipe begins with its name";
    EXPECT_TRUE(kitchen.recipe->close());
}

TEST(RecipeWindow, IsSetToAGravityByOneKey) {
    Kitchen kitchen;
    kitchen.begin();
    kitchen.press(Qt::Key_1, Qt::ControlModifier);
    kitchen.type("9 lb pale");
    kitchen.press(Qt::Key_Return);
    const auto sg = text_of(*kitchen.recipe, "sg");
    const auto set_to = [&](const char* gravity, bool can) {
        QTimer::singleShot(300, kitchen.recipe, [&kitchen, gravity, can] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            kitchen.activate(dialog);
            kitchen.type(gravity);
            const auto* const buttons = dialog->findChild<QDialogButtonBox*>();
            EXPECT_EQ(buttons->button(QDialogButtonBox::Ok)->isEnabled(), can);
            kitchen.press(Qt::Key_Return);
            EXPECT_EQ(dialog->isVisible(), !can);
            dialog->reject();
        });
        kitchen.press(Qt::Key_T, Qt::ControlModifier);
        kitchen.activate(kitchen.recipe);
    };
    set_to("1.075", true);
    EXPECT_EQ(text_of(*kitchen.recipe, "sg"), "1.075");
    kitchen.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text_of(*kitchen.recipe, "sg"), sg) << "one step";
    kitchen.press(Qt::Key_Z, Qt::ControlModifier);
    set_to("1.05", false); // there are no malts left
    EXPECT_TRUE(kitchen.recipe->close());
}

TEST(RecipeWindow, UndoIsTheRecipesInEveryField) {
    Kitchen kitchen;
    kitchen.begin();
    auto& title = *kitchen.recipe->findChild<QLineEdit*>("title");
    auto& batch = *line_of(*kitchen.recipe->findChild<QWidget*>("batch_size"));
    type_over(title, "Stout");
    const auto size = batch.text();
    type_over(batch, "20");
    const auto* const undo = kitchen.recipe->findChild<QAction*>("undo");
    EXPECT_EQ(undo->text(), "&Undo Batch Size");
    kitchen.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(batch.text(), size);
    EXPECT_EQ(title.text(), "Stout");
    kitchen.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(title.text(), "");
    EXPECT_FALSE(undo->isEnabled());
    EXPECT_EQ(kitchen.recipe->windowTitle(), "Untitled - Wortlex Recipe Formulation")
        << "as if nothing had been";
    kitchen.press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(title.text(), "Stout");
    kitchen.prompts.expect_save("recipe", Answer::cancel);
    EXPECT_FALSE(kitchen.recipe->close());
    kitchen.prompts.expect_save("recipe", Answer::yes);
    const auto path = kitchen.folder / "Stout.rec";
    kitchen.files.add(path);
    EXPECT_TRUE(kitchen.recipe->close());
    EXPECT_EQ(kitchen.program.recent_documents, RecentDocuments{path}) << "saved on leaving counts as well";
}

TEST(RecipeWindow, StaysWhileADialogIsOpenOverAPage) {
    Kitchen kitchen;
    kitchen.begin();
    kitchen.on_page(Qt::Key_N, [&] {
        QTimer::singleShot(300, kitchen.recipe, [&] {
            auto* const list = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(list, nullptr);
            EXPECT_FALSE(kitchen.recipe->close()) << "the list would pick for a recipe that is gone";
            list->reject();
        });
        auto* const page = QApplication::activeWindow();
        page->findChild<QPushButton*>("extra_new")->click();
        kitchen.activate(page);
    });
    EXPECT_TRUE(kitchen.recipe->close());
}

TEST(RecipeWindow, ShowsRecoveredWorkAsItWas) {
    Kitchen kitchen;
    kitchen.program.document.recipe.efficiency = 0.6F;
    KeepWork(kitchen.program.data_folder, image_of(live_document(kitchen.program)),
             kitchen.program.document.file);
    kitchen.program.document.recipe.efficiency = 0.9F;
    kitchen.prompts.expect_unsaved_work("a new recipe", Answer::yes);
    kitchen.main->offer_unsaved_work();
    auto* const recipe = open_recipe_window();
    ASSERT_NE(recipe, nullptr);
    EXPECT_EQ(text_of(*recipe, "efficiency"), "60");
    EXPECT_EQ(recipe->windowTitle(), "Untitled* - Wortlex Recipe Formulation");
    kitchen.prompts.expect_save("recipe", Answer::no);
    EXPECT_TRUE(recipe->close());
    EXPECT_EQ(ReadWork(kitchen.folder / "WlxWork.rcv"), std::nullopt) << "left knowingly";
}

} // namespace
} // namespace wortlex
