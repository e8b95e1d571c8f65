#include "brewing/calendar.h"
#include "desktop/system_ports.h"
#include "support/kitchen.h"
#include "windows/documents/session_window.h"

#include <gmock/gmock.h>

namespace wortlex {
namespace {

// A brew day begun at the kitchen's table, with enough of everything in stock.
struct BrewKitchen : Kitchen {
    std::string recipe_path = save_sample("Mild");

    BrewKitchen() {
        BrewDocument mild;
        load_recipe(recipe_path, mild, program.settings);
        mild.malts.resize(1); // the other is no malt that there could be
        EXPECT_TRUE(save_recipe(recipe_path, mild, prompts));
        auto malt = mild.malts[0].record;
        malt.stock = 20;
        SaveMalts(folder.path(), database_of(malt));
    }
    void start(int command) {
        main->commands().start(command);
        document = seen_window<SessionWindow>();
        ASSERT_NE(document, nullptr);
        activate(document);
    }
    void pick_mild() {
        files.add(recipe_path);
        press(Qt::Key_R, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([this] { return shown("title") == "Mild"; }));
    }
    QString shown(const char* key) const { return text_of(*document, key); }
    bool can(const char* button) const { return document->findChild<QPushButton*>(button)->isEnabled(); }
    SessionDocument load(const std::string& path, BrewDocument& loaded) const {
        SessionDocument session;
        EXPECT_EQ(load_session(path, loaded, session, program.settings), LoadResult::loaded);
        return session;
    }
};

TEST(SessionWindow, AWholeBrewDayByKeyboard) {
    BrewKitchen kitchen;
    const auto path = kitchen.folder / "Mild.brw", copy = kitchen.folder / "Copy.brw";
    kitchen.start(command::new_session);
    EXPECT_FALSE(kitchen.can("ingredients") || kitchen.can("notes") || kitchen.can("save"));
    EXPECT_TRUE(kitchen.can("pick_date"));
    EXPECT_EQ(kitchen.shown("est_og"), "") << "of no recipe";
    kitchen.press(Qt::Key_B, Qt::AltModifier);
    kitchen.type("Ada");
    kitchen.pick_mild();
    EXPECT_EQ(kitchen.shown("actual_og"), kitchen.shown("est_og")) << "until it is measured";
    const auto og = kitchen.shown("est_og");
    kitchen.on_page(Qt::Key_G, [&] {
        kitchen.tab_to("lock_to_batch");
        kitchen.press(Qt::Key_Space);
        kitchen.press(Qt::Key_B, Qt::AltModifier);
        kitchen.type("7.5");
        kitchen.tab_to("hops");
        kitchen.pick_by(Qt::Key_Insert);
    });
    EXPECT_EQ(kitchen.shown("est_og"), og);
    kitchen.on_page(Qt::Key_Y, [] {});
    kitchen.prompts.expect_finalizing(Answer::yes);
    kitchen.prompts.expect_to_wait(Answer::no);
    kitchen.prompts.expect_tell("Database(s) successfully updated!", Icon::information);
    kitchen.press(Qt::Key_Z, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !kitchen.can("finalize"); }));
    kitchen.files.add(path);
    kitchen.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(kitchen.document->windowTitle(), "Mild.brw (finalized) - Wortlex - Brewing Session");
    kitchen.press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(any_open(kitchen.program.tools));

    BrewDocument recipe;
    const auto session = kitchen.load(path, recipe);
    EXPECT_EQ(session.head_brewer.view(), "Ada");
    EXPECT_EQ(brew_date(session), SystemClock().today());
    EXPECT_EQ(recipe.malts[0].amount, 15);
    EXPECT_EQ(recipe.hops.size(), 1U);
    Database<MaltRecord> malts;
    ScriptedPrompts quiet;
    LoadMalts(kitchen.folder.path(), malts, quiet);
    EXPECT_EQ(malts.slots[0].stock, 5);

    kitchen.files.add(path);
    kitchen.start(command::open_session);
    kitchen.files.add(copy);
    kitchen.document->findChild<QAction*>(QString::number(command::save_as))->trigger();
    EXPECT_EQ(read_file(copy), read_file(path)) << "opened and saved, not a byte is lost";
    EXPECT_TRUE(kitchen.document->close());
}

TEST(SessionWindow, CancelAndSaveAsOfTheIngredientsLeaveTheSessionAsItIs) {
    BrewKitchen kitchen;
    kitchen.start(command::new_session);
    kitchen.pick_mild();
    const auto og = kitchen.shown("est_og");
    kitchen.press(Qt::Key_G, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() != kitchen.document; }));
    auto& page = *QApplication::activeWindow();
    type_into(page, "batch_size", "10");
    EXPECT_NE(kitchen.shown("est_og"), og) << "both show one recipe";
    const auto part = kitchen.folder / "Part.rec";
    kitchen.files.add(part);
    press(page, "save_as");
    EXPECT_EQ(kitchen.program.document.file.path, "");
    BrewDocument recipe;
    EXPECT_EQ(load_recipe(part, recipe, kitchen.program.settings), LoadResult::loaded);
    EXPECT_EQ(recipe.batch_size, 10);
    kitchen.answer_page(Answer::no);
    QTest::keyClick(&page, Qt::Key_Escape);
    EXPECT_EQ(kitchen.shown("est_og"), og);
    EXPECT_EQ(kitchen.document->findChild<QAction*>("undo")->text(), "&Undo Cancel Edit Ingredients");
    kitchen.prompts.expect_save("brew session entry", Answer::cancel);
    EXPECT_FALSE(kitchen.document->close());
    kitchen.prompts.expect_save("brew session entry", Answer::no);
    EXPECT_TRUE(kitchen.document->close());
}

TEST(SessionWindow, WhatAPageHoldsOfItsOwnIsAskedForFirst) {
    BrewKitchen kitchen;
    kitchen.start(command::new_session);
    kitchen.pick_mild();
    kitchen.press(Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() != kitchen.document; }));
    type_into(*QApplication::activeWindow(), "saccharification_temperature", "152");
    kitchen.answer_page(Answer::cancel);
    EXPECT_FALSE(kitchen.document->close());
    kitchen.answer_page(Answer::yes);
    kitchen.prompts.expect_save("brew session entry", Answer::no);
    EXPECT_TRUE(kitchen.document->close());
    EXPECT_EQ(kitchen.program.document.recipe.simple_mash.saccharification.temperature, 152);
}

TEST(SessionWindow, KeepsARecipeOutAndACutLogAsItIs) {
    BrewKitchen kitchen;
    kitchen.start(command::new_session);
    kitchen.prompts.expect_yes_no(
        "You cannot open a recipe while a brewing session is open.\nWould you like to "
        "transfer to the currently open brewing session?",
        Answer::yes);
    kitchen.main->open_file(kitchen.recipe_path);
    EXPECT_EQ(open_recipe_window(), nullptr);
    EXPECT_TRUE(kitchen.document->close());

    const auto path = kitchen.folder / "Cut.brw";
    auto bytes = session_bytes(new_session_recipe(kitchen.program.settings), {});
    bytes.resize(20000);
    save_atomically(path, bytes);
    kitchen.prompts.expect_tell("Cut.brw ended early; what is missing was left empty.", Icon::warning);
    kitchen.main->open_file(path);
    kitchen.document = seen_window<SessionWindow>();
    ASSERT_NE(kitchen.document, nullptr);
    kitchen.files.add(std::nullopt);
    press(*kitchen.document, "save");
    EXPECT_THAT(kitchen.files.offers, testing::ElementsAre(testing::HasSubstr("Cut.brw")));
    EXPECT_EQ(*read_file(path), bytes) << "never overwritten unasked";
    EXPECT_TRUE(kitchen.document->close());
}

} // namespace
} // namespace wortlex
