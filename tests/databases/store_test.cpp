#include "databases/hops.h"
#include "databases/messages.h"
#include "support/form_user.h"
#include "support/listed.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

HopRecord hop(std::string_view name, std::string_view origin, float alpha, HopForm form = HopForm::whole) {
    HopRecord record;
    record.name.assign(name);
    record.origin.assign(origin);
    record.alpha = alpha;
    set_form(record, form);
    return record;
}

constexpr std::string_view clone_warning =
    "Cloning may cause problems with inventory if either the Name, Origin or Form is not changed to reflect "
    "a unique entry. Additionally, cloning may cause problems with selecting items if either the Name, "
    "Origin, Alpha or Form is not changed to reflect a unique entry. You may change any of these items after "
    "the cloning process.\n\nDo you really want to clone this entry?";

constexpr std::string_view replace_warning =
    "Replacing the item will NOT overwrite your existing inventory amounts or Alpha/Beta acid "
    "levels.\n\nDo you wish to replace this item?";

struct Hops : Listed<HopRecord> {
    explicit Hops(const std::vector<HopRecord>& entries) : Listed(SaveHops, hop_list, entries, american()) {}
    static Settings american() {
        Settings settings;
        settings.hop_weight_units = Units::american;
        return settings;
    }
    Bytes file() const { return *read_file(folder / "HOPS.DAT"); }
};

TEST(StoreSorting, ChainsKeysEachInItsOwnDirection) {
    Hops hops({hop("b", "US", 5), hop("A", "UK", 5), hop("a", "US", 3), hop("c", "UK", std::nanf("")),
               hop("B", "UK", 9)});
    EXPECT_EQ(hops.column(0), "A|a|B|b|c|") << "by name, then origin, whatever the case";
    hops->click(2);
    EXPECT_EQ(hops.column(0), "a|A|b|B|c|") << "by alpha, then name";
    hops->click(2);
    EXPECT_EQ(hops.column(0), "B|A|b|a|c|") << "downwards, the name still upwards, and no number last";
    hops->click(1);
    hops->click(1);
    EXPECT_EQ(hops.column(0), "a|b|A|B|c|") << "origin downwards, then name";
    EXPECT_TRUE(hops->close(hops.prompts)) << "an order is no change";
    EXPECT_EQ(*read_file(hops.folder / "hsort1.srt"),
              (Bytes{{}, std::byte{1}, {}, {}, {}, {}, std::byte{1}}));
    Database<HopRecord> again;
    const auto reopened = hop_list({ListSide::maintenance, hops.settings, hops.folder.path()}, again);
    reopened->open(hops.prompts);
    EXPECT_EQ(reopened->cell(0, 0) + reopened->cell(2, 0), "aA") << "as it was left";
}

TEST(Store, FiltersAndFormatsItsRows) {
    auto stocked = hop("Fuggle", "UK", 4.5F, HopForm::plug);
    stocked.stock = 0.001F;
    stocked.usage = HopUsage::both;
    Hops hops({hop("Saaz", "CZ", 3, HopForm::pellet), stocked});
    EXPECT_EQ(hops->caption(), "Hop Database Maintenance - All Hops");
    hops->choose_filter(2, hops.prompts);
    EXPECT_EQ(hops.column(0), "Fuggle|");
    EXPECT_EQ(hops->caption(), "Hop Database Maintenance - Plug Hops");
    hops->choose_filter(0, hops.prompts);
    hops->show_only_in_stock(true);
    EXPECT_EQ(hops.column(0), "Fuggle|") << "a thousandth of an ounce is stock";
    EXPECT_EQ(hops.row(0), "Fuggle|UK|   4.50|Bittering/Aroma|   0.00|Plug|");
    hops->show_only_in_stock(false);
    EXPECT_EQ(hops.row(1), "Saaz|CZ|   3.00||     --|Pellet|");
}

TEST(Store, AddsClonesAndDeletes) {
    Hops hops({hop("Saaz", "CZ", 3)});
    hops->filter = 3;
    auto entry = hops->new_entry(hops.prompts);
    type(entry->form, "name", "Admiral");
    EXPECT_EQ(hops.database.count, 1) << "nothing is stored before OK";
    entry->form.accept();
    EXPECT_EQ(hops.column(0), "Saaz|Admiral|") << "unsorted until a column is clicked";
    EXPECT_EQ(std::pair(form(hops.database.slots[1]), hops->selected), std::pair(HopForm::pellet, 1));
    hops.prompts.expect("yes/no", std::string(clone_warning), Answer::yes, Icon::warning);
    hops->clone_entry(hops.prompts);
    entry = hops->edit_entry(hops.prompts);
    type(entry->form, "alpha", "4.5");
    entry->form.accept();
    EXPECT_EQ(std::pair(hops.database.slots[1].alpha, hops.database.slots[2].alpha), std::pair(0.0F, 4.5F))
        << "the copy was selected and is meant, though both read the same";
    hops.prompts.expect_yes_no("Do you really want to delete the\n\nAdmiral\n\nentry?", Answer::yes);
    hops->delete_entry(hops.prompts);
    EXPECT_EQ(hops.column(0), "Saaz|Admiral|");
    EXPECT_EQ(hops->selected, 1);
    EXPECT_EQ(hops.database.slots[2].name.view(), "Admiral")
        << "the free slot keeps a copy of the last entry";
    hops.database.count = 244;
    hops.prompts.expect_tell(std::string(no_room), Icon::warning);
    EXPECT_EQ(hops->new_entry(hops.prompts), nullptr);
    hops.database.count = 2;
    EXPECT_EQ(hops->unsaved_count(), 1U);
    hops.prompts.expect("yes/no or stay",
                        "The hop database has been modified!\nDo you want to save the changes?", Answer::no,
                        Icon::warning);
    EXPECT_TRUE(hops->close(hops.prompts));
    EXPECT_EQ(hops.database.count, 1) << "No reloads the file";
    EXPECT_EQ(hops->unsaved_count(), 0U);
}

TEST(Store, SavingLeavesTheSelectionWhereItIs) {
    Hops hops({hop("Ella", "AU", 15), hop("Fuggle", "UK", 4.5F), hop("Saaz", "CZ", std::nanf(""))});
    hops->click(0);
    for (const std::int32_t row : {0, 2}) {
        hops->selected = row;
        hops->save(hops.prompts);
        EXPECT_EQ(hops->selected, row) << "downwards here, upwards in the file";
    }
}

TEST(Store, RowsStandAsTheyWereBehindTheClosingQuestion) {
    struct Watching : ScriptedPrompts {
        std::function<std::string()> rows;
        std::string seen;
        Answer ask_yes_no_or_stay(const Message&) override { return seen = rows(), Answer::cancel; }
    };
    Hops hops({hop("Ella", "AU", 15), hop("Fuggle", "UK", 4.5F)});
    hops->click(0);
    hops.database.slots[0].alpha = 5;
    Watching prompts;
    prompts.rows = [&] { return hops.column(0); };
    EXPECT_FALSE(hops->close(prompts));
    EXPECT_EQ(prompts.seen, "Fuggle|Ella|");
    EXPECT_EQ(hops.column(0), prompts.seen) << "and who stays finds them so";
}

TEST(Store, EmptyDatabaseDoesNoHarm) {
    Hops hops({hop("Saaz", "CZ", 3)});
    hops.prompts.expect_yes_no("Do you really want to delete the\n\nSaaz\n\nentry?", Answer::yes);
    hops->delete_entry(hops.prompts);
    EXPECT_EQ(hops->selected, -1);
    hops->save(hops.prompts);
    EXPECT_EQ(hops->edit_entry(hops.prompts), nullptr);
    EXPECT_EQ(hops->inventory(hops.prompts), nullptr);
    hops->delete_entry(hops.prompts);
    hops.prompts.expect_tell("There is no entry selected to clone!", Icon::information);
    hops->clone_entry(hops.prompts);
    EXPECT_TRUE(hops->close(hops.prompts));
}

TEST(Store, EntriesThatReadTheSameMeanTheFirst) {
    auto second = hop("Fuggle", "UK", 4.501F); // reads as 4.50 too
    second.stock = 7;
    Hops hops({hop("Fuggle", "UK", 4.5F), second});
    hops->selected = 1;
    EXPECT_EQ(hops->selected_record()->stock, 0.0F);
    auto entry = hops->inventory(hops.prompts);
    type(entry->form, "amount", "2.5");
    entry->form.accept();
    EXPECT_EQ(hops.database.slots[0].stock, 2.5F);
    EXPECT_EQ(hops.database.slots[1].stock, 7.0F);
}

TEST(StoreInventory, SubtractsDownToNothing) {
    auto stocked = hop("Fuggle", "UK", 4.5F);
    stocked.stock = 3;
    Hops hops({stocked});
    auto entry = hops->inventory(hops.prompts);
    type(entry->form, "amount", "5");
    entry->form.choose(dynamic_cast<ChoiceRow&>(entry->form.row("change")), 1);
    entry->form.accept();
    EXPECT_EQ(hops.database.slots[0].stock, 0.0F);
    hops.database.slots[0].stock = 3;
    entry = hops->inventory(hops.prompts);
    hops.prompts.expect_yes_no(std::string(set_to_zero), Answer::yes);
    press(entry->form, "set_to_zero");
    EXPECT_EQ(hops.database.slots[0].stock, 3.0F) << "Cancel would leave it";
    entry->form.accept();
    EXPECT_EQ(hops.database.slots[0].stock, 0.0F);
}

TEST(StoreImport, ReplacesKeepsAndAppends) {
    auto there = hop("Saaz", "CZ", 3, HopForm::pellet);
    there.stock = 12;
    there.beta = 4;
    Hops hops({there, hop("Fuggle", "UK", 4.5F)});
    auto saaz = hop("Saaz", "CZ", 9, HopForm::plug), fresh = hop("Ella", "AU", 15);
    saaz.stock = fresh.stock = 99;
    saaz.tastes.assign("spicy");
    const auto path = hops.transfer({saaz, fresh, hop("Cut", "off", 1)}, hop_layout, 1);
    const auto expect_question = [&](ReplaceAnswer answer) {
        hops.prompts.expect("replace", "Saaz\nThis Hop type already exists in the database!", answer, {},
                            std::string(replace_warning));
    };
    const auto before = hops.file();
    expect_question(ReplaceAnswer::cancel);
    hops->import_file(path, hops.prompts);
    EXPECT_EQ(hops.file(), before) << "Cancel saves nothing";
    expect_question(ReplaceAnswer::yes);
    hops.prompts.expect_tell("Data Successfully Imported!", Icon::information);
    hops->import_file(path, hops.prompts);
    EXPECT_EQ(hops.column(0), "Ella|Fuggle|Saaz|");
    const auto& replaced = hops.database.slots[2];
    EXPECT_EQ(std::tuple(replaced.alpha, replaced.beta, replaced.stock, form(replaced)),
              std::tuple(3.0F, 4.0F, 12.0F, HopForm::plug));
    EXPECT_EQ(replaced.tastes.view(), "spicy");
    EXPECT_EQ(hops.database.slots[0].stock, 0.0F) << "what is new comes without stock";
    EXPECT_EQ(*read_file(hops.folder / "HOPS.DAT.bak"), before);
    EXPECT_TRUE(hops->close(hops.prompts)) << "saved already";
}

TEST(StoreImport, TellsFormsApartAndStopsWithoutABackup) {
    Hops hops({hop("Saaz", "CZ", 3, HopForm::pellet), hop("Saaz", "CZ", 4)});
    const auto import_all = [&](std::string_view name) {
        auto whole = hop("Saaz", "CZ", 4), pellet = hop("Saaz", "CZ", 3, HopForm::pellet);
        whole.tastes.assign(name);
        hops.prompts.expect("replace", "Saaz\nThis Hop type already exists in the database!",
                            ReplaceAnswer::yes_to_all, {}, std::string(replace_warning));
        return hops.transfer({whole, pellet}, hop_layout);
    };
    for (const auto* const time : {"first", "second", "third", "fourth"}) {
        const auto path = import_all(time);
        hops.prompts.expect_tell("Data Successfully Imported!", Icon::information);
        hops->import_file(path, hops.prompts);
        EXPECT_EQ(hops.column(5), "Pellet|Whole|") << "each replaced itself";
    }
    const auto last = hops.file();
    const auto tastes_in = [&](const char* file) {
        return std::string(1, static_cast<char>((*read_file(hops.folder / file)).at(4 + 614 + 86)));
    };
    EXPECT_EQ(tastes_in("HOPS.DAT.bak") + tastes_in("HOPS.DAT.bak2") + tastes_in("HOPS.DAT.bak3"), "tsf");
    std::filesystem::create_directory(hops.folder / "HOPS.DAT.bak0");
    const auto path = import_all("fifth");
    hops.prompts.expect_tell(std::string(no_backup), Icon::error);
    hops->import_file(path, hops.prompts);
    EXPECT_TRUE(hops->close(hops.prompts)) << "nothing has changed";
    EXPECT_EQ(hops.file(), last);
}

TEST(StoreImport, RefusesWhatIsNoDatabaseAndStopsAtTheLimit) {
    Hops hops({hop("Saaz", "CZ", 3)});
    save_atomically(hops.folder / "noise.him", Bytes(614 * 5, std::byte{0xEE}));
    hops.prompts.expect_tell("noise.him holds nothing that this database could take.", Icon::error);
    hops->import_file(hops.folder / "noise.him", hops.prompts);
    hops.prompts.expect_tell("File Not Found!", Icon::error);
    hops->import_file(hops.folder / "gone.him", hops.prompts);
    std::vector<HopRecord> many;
    for (int i = 0; i < 10000; ++i) many.push_back(hop("Hop " + std::to_string(i), "", 1));
    many[3].alpha = std::nanf("");
    hops.prompts.expect_tell("1 entry of the file is damaged and left out.", Icon::warning);
    hops.prompts.expect_tell("The Hop Database is Full!\n\n9001 entries were left out.", Icon::warning);
    hops.prompts.expect_tell("Data Successfully Imported!", Icon::information);
    hops->import_file(hops.transfer(many, hop_layout), hops.prompts);
    EXPECT_EQ(hops.database.count, 999);
}

TEST(Store, ABookingElsewhereIsTakenOverAndNeverWrittenOver) {
    auto stocked = hop("Saaz", "CZ", 3);
    stocked.stock = 10;
    auto edited = hop("Tettnang", "DE", 4), untouched = hop("Zeus", "US", 15);
    edited.stock = untouched.stock = 5;
    Hops hops({stocked, edited, untouched});
    hops->click(0); // downwards, unlike the file
    hops->selected = 1;
    auto entry = hops->edit_entry(hops.prompts);
    type(entry->form, "alpha", "4.5");
    entry->form.accept();
    hops->selected = 2;
    const auto inventory = hops->inventory(hops.prompts);
    type(inventory->form, "amount", "2");

    auto booked = hops.database;
    LoadHops(hops.folder.path(), booked, hops.prompts);
    booked.slots[0].stock = 7;
    booked.slots[1].stock = 1;
    SaveHops(hops.folder.path(), booked);
    hops->follow_stocks();
    inventory->form.accept();
    EXPECT_EQ(hops.column(0) + hops.column(4), "Zeus|Tettnang|Saaz|   5.00|   1.00|   9.00|");
    hops->save(hops.prompts);
    hops->follow_stocks();
    LoadHops(hops.folder.path(), booked, hops.prompts);
    EXPECT_EQ(booked.slots[0].stock, 9) << "the three that were booked, and the two that came in";
    EXPECT_EQ(booked.slots[1].alpha, 4.5F);
}

TEST(HopEntry, StorageClassAndFactorFollowEachOther) {
    for (const auto& [from, to, expected] : {std::tuple{49.0F, 50.0F, StorageClass::poor},
                                             {24.0F, 25.0F, StorageClass::average},
                                             {14.0F, 15.0F, StorageClass::good},
                                             {15.0F, 25.0F, StorageClass::none},
                                             {15.0F, 16.0F, StorageClass::none},
                                             {50.0F, 49.0F, StorageClass::average},
                                             {25.0F, 24.0F, StorageClass::good},
                                             {30.0F, 29.0F, StorageClass::none}})
        EXPECT_EQ(storage_class_crossed(from, to).value_or(StorageClass::none), expected)
            << from << " to " << to;
    auto record = hop("Saaz", "CZ", 3, HopForm::pellet);
    Form form;
    hop_entry_form(form, record);
    type(form, "storage_factor", "25");
    EXPECT_EQ(storage_class(record), StorageClass::average);
    form.choose(dynamic_cast<ChoiceRow&>(form.row("storage")), 2);
    EXPECT_EQ(std::pair(record.storage_factor, wortlex::form(record)), std::pair(50.0F, HopForm::pellet));
    for (const auto& [typed, kept] : {std::pair{5.555F, 5.55F}, {5.5599F, 5.56F}}) {
        record.alpha = typed;
        form.accept();
        EXPECT_FLOAT_EQ(record.alpha, kept);
    }
}

} // namespace
} // namespace wortlex
