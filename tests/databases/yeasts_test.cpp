#include "databases/yeasts.h"
#include "support/form_user.h"
#include "support/listed.h"

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
    auto stocked = yeast("Wyeast", "7", "b", YeastKind::wine);
    stocked.stock = 5;
    Listed yeasts(SaveYeasts, yeast_list,
                  {yeast("Wyeast", "7", "b", YeastKind::wine, YeastMedium::liquid),
                   yeast("Danstar", "2", "b", YeastKind::lager, YeastMedium::agar_slant),
                   yeast("danstar", "1", "c", YeastKind::champagne), stocked});
    const auto order = [&](std::size_t column) {
        yeasts->click(column);
        std::string rows;
        for (std::size_t row = 0; row < 4; ++row)
            rows += yeasts->cell(row, 1) + yeasts->cell(row, 4)[0] + " ";
        return rows;
    };
    yeasts->click(0); // labs downwards
    EXPECT_EQ(order(2), "2A 7L 7D 1D ") << "by name, then lab";
    EXPECT_EQ(order(3), "1D 2A 7L 7D ") << "Champagne, Lager, Wine";
    EXPECT_EQ(order(4), "2A 1D 7D 7L ") << "Agar, Dry, Liquid";
    EXPECT_EQ(yeasts->cell(0, 3) + yeasts->cell(0, 5), "Lager     --");
    yeasts->selected = 3;
    EXPECT_EQ(yeasts->selected_record()->stock, 0.0F) << "not the dry one of that number";
    yeasts.import(yeast("Wyeast", "7", "b", YeastKind::ale, YeastMedium::agar_slant), yeast_layout,
                  "Wyeast b\nThis Yeast type already exists in the database!",
                  "Replacing the item will NOT overwrite your existing inventory amounts.\n\nDo you wish to "
                  "replace this item?");
    EXPECT_EQ(yeasts->shown_count(), 4U) << "for an import the medium is no difference";
    yeasts.database.count = 998;
    const auto entry = yeasts->new_entry(yeasts.prompts);
    type(entry->form, "name", "d");
    entry->form.accept();
    EXPECT_EQ(yeasts.database.count, 999) << "there is room beyond the limit of the hops";
}

TEST(YeastEntry, HasOneTemperatureInTwoFields) {
    YeastRecord record;
    Form form;
    yeast_entry_form(form, record);
    using Row = std::tuple<const char*, const char*, const char*, const char*, float>;
    for (const auto& [typed_in, text, other, follows, kept] :
         {Row{"fahrenheit", "400", "celsius", "100.00", 212.0F},
          {"celsius", "-10", "fahrenheit", "14.00", 14.0F},
          {"celsius", "300", "fahrenheit", "413.60", 212.0F}}) {
        type(form, typed_in, text);
        EXPECT_EQ(content_of(form, other), follows) << text;
        form.accept();
        EXPECT_EQ(record.optimum_temperature, kept) << text;
    }
}

} // namespace
} // namespace wortlex
