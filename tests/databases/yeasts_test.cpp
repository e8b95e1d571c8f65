#include "databases/store.h"
#include "databases/yeasts.h"
#include "support/desk.h"
#include "support/field.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

YeastRecord yeast(std::string_view lab, std::string_view number, std::string_view name, YeastKind kind,
                  YeastMedium medium = YeastMedium::dry) {
    return {.name = Text<55>(name),
            .lab = Text<55>(lab),
            .catalog_number = Text<25>(number),
            .yeast_kind = kind,
            .yeast_medium = medium,
            .flavours = {},
            .comment = {}};
}

TEST(YeastList, SortsByItsWordsAndTellsMediaApart) {
    const TemporaryFolder folder;
    ScriptedPrompts prompts;
    Database<YeastRecord> database{.count = 4};
    database.slots[0] = yeast("Wyeast", "7", "b", YeastKind::wine, YeastMedium::liquid);
    database.slots[1] = yeast("Danstar", "2", "b", YeastKind::lager, YeastMedium::agar_slant);
    database.slots[2] = yeast("danstar", "1", "c", YeastKind::champagne);
    database.slots[3] = yeast("Wyeast", "7", "b", YeastKind::wine);
    ASSERT_TRUE(SaveYeasts(folder.path(), database));
    const auto catalogue = yeast_catalogue(Settings(), folder.path());
    Store<YeastRecord> store(catalogue, ListSide::maintenance, folder.path(), database);
    store.open(prompts);
    const auto order = [&](std::size_t column) {
        store.click(column);
        std::string rows;
        for (std::size_t row = 0; row < 4; ++row) rows += store.cell(row, 1) + store.cell(row, 4)[0] + " ";
        return rows;
    };
    store.click(0); // labs downwards
    EXPECT_EQ(order(2), "2A 7L 7D 1D ") << "by name, then lab";
    EXPECT_EQ(order(3), "1D 2A 7L 7D ") << "Champagne, Lager, Wine";
    EXPECT_EQ(order(4), "2A 1D 7D 7L ") << "Agar, Dry, Liquid";
    EXPECT_EQ(store.cell(0, 3) + store.cell(0, 5), "Lager     --");
    store.selected = 3;
    EXPECT_EQ(store.selected_entry(), 3U) << "not the dry one of that number";
    database.count = 998;
    store.new_entry(prompts)->form.accept();
    EXPECT_EQ(database.count, 999) << "there is room beyond the limit of the hops";

    auto imported = database.slots[2], existing = database.slots[3];
    EXPECT_TRUE(catalogue.is_same(imported, existing)) << "for an import the medium is no difference";
    existing.stock = 5;
    catalogue.keep(imported, existing);
    EXPECT_EQ(imported.stock, 5);
    EXPECT_EQ(catalogue.exists_text(imported), "Wyeast b\nThis Yeast type already exists in the database!");
}

TEST(YeastEntry, HasOneTemperatureInTwoFields) {
    YeastRecord record;
    Form form;
    yeast_entry_form(form, record);
    const auto field_of = [&](const char* key) { return &dynamic_cast<EntryRow&>(form.row(key)); };
    using Row = std::tuple<const char*, const char*, const char*, const char*, float>;
    for (const auto& [typed_in, text, other, follows, kept] :
         {Row{"fahrenheit", "400", "celsius", "100.00", 212.0F},
          {"celsius", "-10", "fahrenheit", "14.00", 14.0F},
          {"celsius", "300", "fahrenheit", "413.60", 212.0F}}) {
        PlainField typed(text), shown;
        form.type(*field_of(typed_in), typed);
        field_of(other)->show(shown);
        EXPECT_EQ(shown.content, follows) << text;
        form.accept();
        EXPECT_EQ(record.optimum_temperature, kept) << text;
    }
}

} // namespace
} // namespace wortlex
