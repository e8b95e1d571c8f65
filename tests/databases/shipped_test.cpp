#include "databases/shipped.h"

#include "base/ports/quiet_prompts.h"
#include "support/database_of.h"
#include "support/form_user.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

HopRecord sold(std::string_view name, float alpha = 5, HopForm as = HopForm::pellet) {
    HopRecord hop;
    hop.name.assign(name);
    hop.alpha = alpha;
    set_form(hop, as);
    return hop;
}

// A brewery, and the one that comes with the program.
struct Upgrade {
    TemporaryFolder shipped, brewery;
    Settings settings;

    void ship(const std::vector<HopRecord>& entries, const TemporaryFolder& to) const {
        ShippedNames names;
        add_names(names, hop_catalogue(settings, ""), database_of(entries));
        SaveHops(to.path(), database_of(entries));
        save_atomically(to / "WlxShipped.txt", shipped_names_bytes(names));
    }
    void keep(const std::vector<HopRecord>& entries) const { SaveHops(brewery.path(), database_of(entries)); }
    ShippedOffer offer() const { return find_offer(shipped.path(), brewery.path(), settings); }
    Bytes file(const char* name) const { return *read_file(brewery / name); }

    // The names of what is offered, or of the brewer's hops.
    std::string offered() const {
        std::string names;
        const auto found = offer();
        for (const auto& group : found.groups)
            for (const auto& entry : group.entries) names += entry.name.substr(9) + '|';
        return names;
    }
    std::string own() const {
        Database<HopRecord> hops;
        QuietPrompts quiet;
        LoadHops(brewery.path(), hops, quiet);
        std::string names;
        for (const auto& hop : hops.entries()) names += std::string(hop.name.view()) + '|';
        return names;
    }
};

TEST(ShippedEntries, AreOfferedOnceAndNeverInTheBrewersStead) {
    const Upgrade upgrade;
    upgrade.ship({sold("Admiral"), sold("Cascade"), sold("Fuggle")}, upgrade.brewery);
    auto mine = sold("Cascade", 9.9F);
    mine.stock = 3;
    mine.name.bytes.back() = 'x';                               // behind the end of the text
    auto filled = database_of(std::vector{mine, sold("Zeus")}); // Admiral and Fuggle are deleted
    filled.slots[7].name.assign("left over");
    SaveHops(upgrade.brewery.path(), filled);

    upgrade.ship({sold("Admiral"), sold("Bravo"), sold("Cascade"), sold("Cascade", 5, HopForm::whole),
                  sold("Fuggle"), sold("Eroica"), sold("Zeus")},
                 upgrade.shipped);
    EXPECT_EQ(upgrade.offered(), "Bravo\t\tPellet|Cascade\t\tWhole|Eroica\t\tPellet|");
    EXPECT_EQ(upgrade.offered(), "Bravo\t\tPellet|Cascade\t\tWhole|Eroica\t\tPellet|")
        << "until it is answered";
    auto offer = upgrade.offer();
    offer.groups.at(0).entries.at(1).is_wanted = false;
    ASSERT_TRUE(answer_offer(offer, upgrade.settings));
    EXPECT_EQ(upgrade.own(), "Bravo|Cascade|Eroica|Zeus|");
    const auto size = hop_layout.size;
    const auto file = upgrade.file("HOPS.DAT");
    const auto entry = ByteView(file).subspan(4 + size, size);
    EXPECT_TRUE(std::equal(entry.begin(), entry.end(), encoded(mine, hop_layout).begin()));
    Database<HopRecord> now;
    QuietPrompts quiet;
    LoadHops(upgrade.brewery.path(), now, quiet);
    EXPECT_EQ(now.slots[7].name.view(), "left over");
    upgrade.keep({});
    EXPECT_EQ(upgrade.offered(), "") << "what was declined or deleted";
    EXPECT_EQ(upgrade.file("HOPS.DAT"), database_bytes(Database<HopRecord>(), hop_layout));
}

TEST(ShippedEntries, OfABreweryWithoutAWholeNoteCountAsOffered) {
    const Upgrade upgrade;
    upgrade.ship({sold("Admiral"), sold("Bravo")}, upgrade.shipped);
    upgrade.keep({sold("Admiral")});
    const auto whole = *read_file(upgrade.shipped / "WlxShipped.txt");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        save_atomically(upgrade.brewery / "WlxShipped.txt", ByteView(whole).first(length));
        ASSERT_EQ(upgrade.offered(), "") << length;
        ASSERT_EQ(upgrade.file("WlxShipped.txt"), whole) << length;
    }
    std::filesystem::remove(upgrade.brewery / "WlxShipped.txt");
    EXPECT_EQ(upgrade.offered(), "");
    EXPECT_EQ(upgrade.file("WlxShipped.txt"), whole);
    std::filesystem::remove(upgrade.shipped / "WlxShipped.txt");
    EXPECT_EQ(upgrade.offered(), "") << "nothing came with the program";
}

TEST(ShippedEntries, WaitForAWholeDatabaseWithRoom) {
    const Upgrade upgrade;
    upgrade.ship({}, upgrade.brewery);
    upgrade.ship({sold("Admiral"), sold("Bravo"), sold("Cascade")}, upgrade.shipped);
    save_atomically(upgrade.brewery / "HOPS.DAT", Bytes(100));
    EXPECT_EQ(upgrade.offered(), "");
    upgrade.keep(std::vector<HopRecord>(998, sold("Mine")));
    EXPECT_EQ(upgrade.offered(), "Admiral\t\tPellet|");
    const auto full = upgrade.offer();
    upgrade.keep(std::vector<HopRecord>(999, sold("Mine")));
    EXPECT_TRUE(answer_offer(full, upgrade.settings)) << "filled while the question stood";
    upgrade.keep({sold("Bravo")});
    EXPECT_EQ(upgrade.offered(), "Cascade\t\tPellet|") << "of the rest the one that is not there";
}

TEST(ShippedEntries, ThatCannotBeSavedChangeNothing) {
    const Upgrade upgrade;
    upgrade.ship({}, upgrade.brewery);
    upgrade.ship({sold("Admiral")}, upgrade.shipped);
    upgrade.keep({sold("Zeus")});
    const auto before = upgrade.file("HOPS.DAT");
    const auto offer = upgrade.offer();
    const auto note = upgrade.brewery / "WlxShipped.txt";
    std::filesystem::rename(note, note + ".old");
    std::filesystem::create_directory(note); // in its way
    EXPECT_FALSE(answer_offer(offer, upgrade.settings));
    EXPECT_EQ(upgrade.file("HOPS.DAT"), before);
    EXPECT_EQ(upgrade.offered(), "") << "no answer could be noted";
    std::filesystem::remove(note);
    std::filesystem::rename(note + ".old", note);
    save_atomically(upgrade.brewery / "HOPS.DAT", Bytes(100)); // damaged while the question stood
    EXPECT_FALSE(answer_offer(offer, upgrade.settings));
    EXPECT_EQ(upgrade.file("HOPS.DAT"), Bytes(100));
}

TEST(OfferForm, TellsNamesAsTheyAreAndChecksAllOrNone) {
    ShippedOffer offer;
    offer.groups = {
        {"Hops", {{"HOPS.DAT\tHop & Glory\t\tWhole"}, {"HOPS.DAT\tSaaz\tCzech Republic\tPellet"}}},
        {"Waters", {{"WATER.DAT\tPilsen"}}}};
    Form form;
    offer_form(form, offer);
    EXPECT_EQ(form.row("entry_1").label_text(), "Hop && Glory, Whole");
    EXPECT_EQ(form.row("entry_2").label_text(), "Saaz, Czech Republic, Pellet");
    EXPECT_EQ(form.heading_of(form.row("entry_3")), "Waters");
    auto& toggle = dynamic_cast<ButtonRow&>(form.row("toggle"));
    toggle.press();
    EXPECT_FALSE(wants_any(offer));
    check(form, "entry_3", true);
    EXPECT_EQ(toggle.label_text(), "Chec&k None");
}

} // namespace
} // namespace wortlex
