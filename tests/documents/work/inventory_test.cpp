#include "documents/work/inventory_analysis.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace wortlex {
namespace {

template <class Record>
Record& add_entry(Database<Record>& database, std::string_view name, float stock) {
    auto& entry = database.slots[static_cast<std::size_t>(database.count++)];
    entry.name.assign(name);
    entry.stock = stock;
    return entry;
}

template <class Line, class Record>
Line& add_line(std::vector<Line>& lines, const Record& record, float amount) {
    auto& line = lines.emplace_back();
    line.record = record;
    line.amount = amount;
    return line;
}

// A store room with one entry of each kind, and a document that asks for half of each.
struct StoreRoom {
    Stocks stocks;
    BrewDocument document;
    SystemSettings image = WriteDefaultSettings();

    StoreRoom() {
        auto& malt = add_entry(stocks.malts, "Pale", 20);
        malt.origin.assign("England");
        malt.potential = 1.037F;
        malt.colour = 2.9F;
        auto& hop = add_entry(stocks.hops, "Fuggle", 4);
        hop.origin.assign("England");
        hop.alpha = 5;
        set_form(hop, HopForm::pellet);
        add_entry(stocks.extras, "Irish Moss", 2).extra_type = ExtraType::fining;
        add_entry(stocks.yeasts, "American Ale", 3).lab.assign("Wyeast");
        add_line(document.malts, malt, 10);
        add_line(document.hops, hop, 2).alpha = 4;
        add_line(document.extras, stocks.extras.slots[0], 1);
        document.yeast.record = stocks.yeasts.slots[0];
    }
    InventoryAnalysis analysis() const {
        auto copy = image;
        return analyze_inventory(document, stocks, settings_from(copy));
    }
    std::string text() const {
        std::string all;
        for (const auto& row : inventory_rows(analysis())) all += tabbed_line(row) + '\n';
        return all;
    }
    std::string left() const {
        return formatted("%0.1f ", stocks.malts.slots[0].stock) +
               formatted("%0.1f ", stocks.hops.slots[0].stock) +
               formatted("%0.1f ", stocks.extras.slots[0].stock) +
               formatted("%0.1f", stocks.yeasts.slots[0].stock);
    }
    bool book() { return book_stocks(stocks, document).is_complete; }
};

TEST(Inventory, ListsWhatIsAskedForBesideWhatIsThere) {
    StoreRoom room;
    room.image.display_home_bittering = 1;
    room.image.bittering_unit = BitteringUnit::hbu;
    room.stocks.malts.slots[0].stock = 7.5F;
    EXPECT_EQ(room.text(), "Grain/Malt\tRecipe Lbs\tLbs In Stock\tLbs Needed\n"
                           "Pale - England\t  10.00\t   7.50\t   2.50  *\n"
                           "Hops\tRecipe Oz\tOz In Stock\tOz Needed\n"
                           "Fuggle - Pellet - England\t   2.00\t   4.00\t   0.00\n"
                           "Hop HBU's\tIn Recipe\tIn Stock\tNeeded\n"
                           "Fuggle - Pellet - England\t   8.00\t  20.00\t   0.00\n"
                           "Extras\tRecipe\tIn Stock\tNeeded\n"
                           "Irish Moss\t   1.00\t   2.00\t   0.00\n"
                           "Yeast\tRecipe\tIn Stock\tNeeded\n"
                           "American Ale - Wyeast\t   1.00\t   3.00\t   0.00\n");
    EXPECT_EQ(room.text(), room.text()) << "nothing is taken";
}

TEST(Inventory, AmountsAreInTheUnitsOfTheListsAndEmptyListsKeepTheirHeads) {
    StoreRoom room;
    room.image.weight_units = room.image.hop_weight_units = Units::metric;
    room.image.display_home_bittering = 1;
    room.image.bittering_unit = BitteringUnit::mbu;
    room.document.extras.clear();
    room.document.yeast = {};
    room.stocks.hops.count = 0;
    EXPECT_EQ(room.text(), "Grain/Malt\tRecipe kg\tkg In Stock\tkg Needed\n"
                           "Pale - England\t   4.54\t   9.07\t   0.00\n"
                           "Hops\tRecipe g\tg In Stock\tg Needed\n"
                           "Fuggle - Pellet - England\t  56.70\t   0.00\t  56.70  *\n"
                           "Hop MBU's\tIn Recipe\tIn Stock\tNeeded\n"
                           "Fuggle - Pellet - England\t 226.80\t   0.00\t 226.80  *\n"
                           "Extras\tRecipe\tIn Stock\tNeeded\n"
                           "Yeast\tRecipe\tIn Stock\tNeeded\n");
    EXPECT_EQ(count_short(room.analysis()), 1U) << "not once more for its bitterness";
}

TEST(Inventory, ABookingTakesEachLineAndNothingFallsBelowZero) {
    StoreRoom room;
    room.document.hops[0].amount = 9;
    EXPECT_TRUE(room.book()) << "too little is not nothing";
    EXPECT_EQ(room.left(), "10.0 0.0 1.0 2.0");
    EXPECT_FALSE(room.book()) << "the hop has run out";
    EXPECT_EQ(room.left(), "0.0 0.0 0.0 1.0");
}

TEST(Inventory, AListIsNotCompleteOfWhichNothingWasFound) {
    StoreRoom room;
    add_line(room.document.malts, room.stocks.malts.slots[0], 1).record.name.assign("Wheat");
    EXPECT_TRUE(room.book()) << "one of the two is there";
    room.document.malts.erase(room.document.malts.begin());
    EXPECT_FALSE(room.book());
    room.document = {};
    EXPECT_TRUE(room.book()) << "nothing is asked for";
}

TEST(Inventory, AnEntryIsFoundByWhatTellsItApart) {
    const StoreRoom room;
    const auto found_after = [&](auto change) {
        auto document = room.document;
        change(document);
        auto stocks = room.stocks;
        const auto booking = book_stocks(stocks, document);
        return booking.malts && booking.hops && booking.extras && booking.yeasts;
    };
    using Document = BrewDocument;
    EXPECT_TRUE(found_after([](Document& d) { d.malts[0].record.potential = 1.0374F; }));
    EXPECT_FALSE(found_after([](Document& d) { d.malts[0].record.potential = 1.0385F; }));
    EXPECT_TRUE(found_after([](Document& d) { d.malts[0].record.colour = 2.1F; }));
    EXPECT_FALSE(found_after([](Document& d) { d.malts[0].record.colour = 3.0F; }));
    EXPECT_FALSE(found_after([](Document& d) { d.malts[0].record.origin.assign("Scotland"); }));
    EXPECT_TRUE(found_after([](Document& d) { d.hops[0].record.alpha = 7; }));
    EXPECT_FALSE(found_after([](Document& d) { set_form(d.hops[0].record, HopForm::whole); }));
    EXPECT_FALSE(found_after([](Document& d) { d.extras[0].record.extra_type = ExtraType::herb; }));
    EXPECT_TRUE(found_after([](Document& d) { d.extras[0].record.amount_unit = AmountUnit::grams; }));
    EXPECT_FALSE(found_after([](Document& d) { d.yeast.record.catalog_number.assign("1056"); }));
    EXPECT_FALSE(found_after([](Document& d) { d.yeast.record.yeast_medium = YeastMedium::liquid; }));
}

TEST(Inventory, TellsEveryFileThatIsNotWhole) {
    const TemporaryFolder folder;
    Stocks stocks;
    SaveHops(folder.path(), {});
    SaveYeasts(folder.path(), {});
    save_atomically(folder / "EXTRA.DAT", Bytes(40));
    EXPECT_THAT(LoadStocks(folder.path(), stocks),
                testing::ElementsAre("The file MALT.DAT was not found.",
                                     "The file EXTRA.DAT is damaged or too short."));
}

} // namespace
} // namespace wortlex
