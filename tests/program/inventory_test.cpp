#include "documents/work/stocks.h"
#include "program/inventory.h"
#include "program/recovery.h"
#include "records/documents/document_files.h"
#include "support/database_of.h"
#include "support/started_program.h"

#include <gmock/gmock.h>

namespace wortlex {
namespace {

// A brewery with 20 pounds, 4 ounces, 2 spoons and 3 packs in stock, and a session that takes 10, 3, 1 and 1.
struct StockedBrewery : StartedProgram {
    RecipeEditor editor{view(), {}, {}};
    DocumentImage saved;

    StockedBrewery() {
        new_session(program, {6, 12, 2026});
        editor.notices = &program.notices;
        stock(program.document.recipe);
        start_editing(editor, {});
    }
    OpenDocument view() {
        program.document.kind = DocumentKind::session;
        return live_document(program);
    }
    void stock(BrewDocument& recipe) const {
        Database<MaltRecord> malts;
        Database<HopRecord> hops;
        Database<ExtraRecord> extras;
        Database<YeastRecord> yeasts;
        recipe.malts = {{.record = put(malts, 20), .amount = 10}};
        recipe.hops = {{.record = put(hops, 4), .amount = 3}};
        recipe.extras = {{.record = put(extras, 2), .amount = 1}};
        recipe.yeast = {.record = put(yeasts, 3)};
        EXPECT_TRUE(SaveMalts(folder.path(), malts) && SaveHops(folder.path(), hops) &&
                    SaveExtras(folder.path(), extras) && SaveYeasts(folder.path(), yeasts));
    }
    template <class Record>
    static Record put(Database<Record>& database, float stock) {
        Record record;
        record.name.assign("What is asked for");
        record.stock = stock;
        database = database_of(record);
        return record;
    }
    std::string in_stock() const {
        Stocks stocks;
        LoadStocks(folder.path(), stocks);
        return formatted("%0.0f ", stocks.malts.slots[0].stock) +
               formatted("%0.0f ", stocks.hops.slots[0].stock) +
               formatted("%0.0f ", stocks.extras.slots[0].stock) +
               formatted("%0.0f", stocks.yeasts.slots[0].stock);
    }
    bool finalize() {
        DocumentSaving saving{editor, program.document.file, saved, files, prompts, ""};
        return finalize_inventory(program, saving);
    }
    void expect_updated() { prompts.expect_tell("Database(s) successfully updated!", Icon::information); }
    bool is_finalized() const { return program.document.session.inventory_finalized != 0; }
};

TEST(FinalizeInventory, BooksOnceAndSavesTheSession) {
    StockedBrewery brewery;
    const auto path = brewery.folder / "May.brw";
    brewery.program.document.file = {.path = path, .loaded_from_file = true};
    ASSERT_TRUE(KeepWork(brewery.folder.path(), image_of(brewery.editor.open), {})) << "of a minute ago";
    brewery.prompts.expect_finalizing(Answer::no);
    EXPECT_FALSE(brewery.finalize());
    EXPECT_EQ(brewery.in_stock(), "20 4 2 3");
    EXPECT_TRUE(brewery.prompts.details.empty()) << "there is enough";

    std::vector<Change> told;
    const auto listening = brewery.program.notices.listen([&](Change change) { told.push_back(change); });
    brewery.prompts.expect_finalizing(Answer::yes);
    brewery.expect_updated();
    EXPECT_TRUE(brewery.finalize());
    EXPECT_EQ(brewery.in_stock(), "10 1 1 2");
    EXPECT_THAT(told, testing::ElementsAre(Change::databases, Change::document));
    EXPECT_FALSE(is_modified(brewery.editor.open, brewery.saved, brewery.program.document.file));
    BrewDocument recipe;
    SessionDocument session;
    ASSERT_EQ(load_session(path, recipe, session, brewery.program.settings), LoadResult::loaded);
    EXPECT_EQ(session.inventory_finalized, 1);
    EXPECT_FALSE(read_file(work_path(brewery.folder.path()))) << "nothing is left that was not booked yet";

    brewery.prompts.expect_tell("This Brewing Session has already been finalized!\n\nYou may only finalize a "
                                "brewing session 1 time...",
                                Icon::information);
    EXPECT_FALSE(brewery.finalize());
    EXPECT_EQ(brewery.in_stock(), "10 1 1 2");
}

TEST(FinalizeInventory, WhatIsMissingMayBeWaitedFor) {
    StockedBrewery brewery;
    brewery.editor.open.document.hops[0].record.name.assign("Another hop");
    brewery.prompts.expect_finalizing(Answer::yes);
    brewery.prompts.expect_to_wait(Answer::yes);
    EXPECT_FALSE(brewery.finalize());
    EXPECT_EQ(brewery.in_stock(), "20 4 2 3");
    brewery.prompts.expect_finalizing(Answer::yes);
    brewery.prompts.expect_to_wait(Answer::no);
    brewery.expect_updated();
    brewery.finalize();
    EXPECT_EQ(brewery.in_stock(), "10 4 1 2");
    const auto shortages =
        "Of these only what is there will be subtracted:\nAnother hop - Whole: in no database";
    EXPECT_THAT(brewery.prompts.details, testing::ElementsAre(shortages, shortages, shortages, shortages));
}

TEST(FinalizeInventory, NothingTakenIsTold) {
    StockedBrewery brewery;
    auto& recipe = brewery.editor.open.document;
    recipe.hops.clear();
    recipe.extras.clear();
    recipe.yeast = {};
    recipe.malts[0].record.name.assign("Another malt");
    brewery.prompts.expect_finalizing(Answer::yes);
    brewery.prompts.expect_to_wait(Answer::no);
    brewery.expect_updated();
    brewery.finalize();
    EXPECT_EQ(brewery.prompts.details.back(),
              "Nothing was subtracted: no ingredient of the session is in stock.");
}

TEST(FinalizeInventory, ASessionWithoutAFileIsKeptAsFinalized) {
    StockedBrewery brewery;
    set_title(brewery.editor, "May");
    brewery.prompts.expect_finalizing(Answer::yes);
    brewery.expect_updated();
    EXPECT_FALSE(brewery.finalize()) << "it has still to be saved";
    LiveDocument found;
    const auto work = ReadWork(work_path(brewery.folder.path()));
    ASSERT_TRUE(work && restore_work(found, *work, brewery.program.settings));
    EXPECT_EQ(found.session.inventory_finalized, 1);
    EXPECT_TRUE(undo(brewery.editor));
    EXPECT_EQ(brewery.program.document.recipe.title.view(), "");
    EXPECT_TRUE(brewery.is_finalized()) << "a booking is never taken back";
}

TEST(FinalizeInventory, AllIsBookedOrNothing) {
    StockedBrewery brewery;
    std::filesystem::remove(brewery.folder / "HOPS.DAT");
    save_atomically(brewery.folder / "YEAST.DAT", Bytes(1000));
    brewery.prompts.expect_finalizing(Answer::yes);
    brewery.prompts.expect_tell("The file HOPS.DAT was not found.\nThe file YEAST.DAT is damaged or too "
                                "short.\n\nThe inventory was not finalized: nothing has been changed.",
                                Icon::error);
    EXPECT_FALSE(brewery.finalize());

    brewery.stock(brewery.editor.open.document);
    brewery.program.document.file = {.path = brewery.folder / "missing/May.brw", .loaded_from_file = true};
    brewery.prompts.expect_finalizing(Answer::yes);
    brewery.prompts.expect_tell(
        "The inventory was not finalized: its files could not be written. Is the disk "
        "full, or a file or folder read-only?\n\nNothing has been changed.",
        Icon::error);
    EXPECT_FALSE(brewery.finalize());
    EXPECT_EQ(brewery.in_stock(), "20 4 2 3");
    EXPECT_FALSE(brewery.is_finalized());
}

TEST(FinalizeInventory, TheNextStartTellsWhatItFinished) {
    const TemporaryFolder folder;
    ScriptedPrompts prompts;
    finish_booking(folder.path(), prompts);
    const std::string left("Wortlex joint save 1\n\1\0\0\0\1\0\0\0a\0\0\0\0", 34);
    save_atomically(folder / "WlxStock.jnl", std::as_bytes(std::span(left)));
    prompts.expect_tell(
        "Wortlex ended while the inventory of a brewing session was being finalized. This has "
        "been completed now: the session is finalized, and its ingredients are taken from "
        "stock.",
        Icon::information);
    finish_booking(folder.path(), prompts);
    EXPECT_EQ(folder.entries(), 1);
}

} // namespace
} // namespace wortlex
