#include "databases/styles.h"
#include "support/form_user.h"
#include "support/listed.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

StyleRecord style(std::int16_t number, char letter, std::string_view category, std::string_view name,
                  BeerType type) {
    StyleRecord record;
    record.category.assign(category);
    record.name.assign(name);
    std::tie(record.number, record.letter, record.type) = std::tie(number, letter, type);
    return record;
}

// Both sets in files of their own, the AHA set in force.
struct Styles {
    TemporaryFolder folder;
    Settings settings;
    ScriptedPrompts prompts;
    Database<StyleRecord> database;

    Styles() {
        write(false, {style(10, 'B', "Stout", "Dry Stout", BeerType::ale),
                      style(2, 'A', "Bock", "Helles", BeerType::lager),
                      style(2, '\0', "Bock", "Other", static_cast<BeerType>(9))});
        write(true, {style(27, 'A', "Cider", "Common", BeerType::cider),
                     style(1, 'A', "Rice", "Junmai", BeerType::sake)});
    }
    void write(bool bjcp, const std::vector<StyleRecord>& entries) const {
        EXPECT_TRUE(SaveStyles(folder.path(), bjcp, database_of(entries)));
    }
    std::unique_ptr<RecordList<StyleRecord>> open(ListSide side) {
        auto list = style_list({side, settings, folder.path()}, database);
        list->open(prompts);
        return list;
    }
    void expect_question(const std::string& text, Answer answer, const char* what = "yes/no or stay") {
        prompts.expect(what, "You have made changes to the Style " + text, answer, Icon::warning);
    }
    void expect_switch(const std::string& book, Answer answer) {
        expect_question("Guidlines Database!\nThese guidlines adhere to " + book +
                            " guidlines and changing them may affect validity.\nAre you sure you want to "
                            "save the changes?",
                        answer);
    }
};

void rename_first(IngredientList& list, Prompts& prompts) {
    list.selected = 0;
    const auto entry = list.edit_entry(prompts);
    type(entry->form, "name", "Renamed");
    entry->form.accept();
}

TEST(StyleList, NumbersAndSorts) {
    Styles styles;
    const auto list = styles.open(ListSide::maintenance);
    EXPECT_EQ(column_of(*list, 0), "02-?|02-A|10-B|") << "sorted as it reads";
    EXPECT_EQ(column_of(*list, 3), "N/A|Lager|Ale|");
    list->click(2);
    EXPECT_EQ(column_of(*list, 2), "Dry Stout|Helles|Other|");
    styles.prompts.expect_yes_no("Do you really want to delete the\n\nStout\nDry Stout\n\nentry?",
                                 Answer::no);
    list->delete_entry(styles.prompts);
}

TEST(StyleList, SwitchesTheSetInForce) {
    Styles styles;
    const auto list = styles.open(ListSide::maintenance);
    rename_first(*list, styles.prompts);
    styles.expect_switch("AHA", Answer::no);
    list->choose_filter(1, styles.prompts);
    EXPECT_EQ(styles.settings.style_book, StyleBook::bjcp);
    EXPECT_EQ(list->heads()[0].caption() + column_of(*list, 3), "BJCP\n#Sake|Cider|");
    EXPECT_EQ(list->edit_entry(styles.prompts)->caption, 1U);
    rename_first(*list, styles.prompts);
    for (const auto answer : {Answer::cancel, Answer::yes}) { // who leaves the question stays in the set
        styles.expect_switch("BJCP", answer);
        list->choose_filter(0, styles.prompts);
        EXPECT_EQ(styles.settings.style_book == StyleBook::bjcp, answer == Answer::cancel);
    }
    EXPECT_EQ(column_of(*list, 2), "Other|Helles|Dry Stout|") << "No dropped the change";
    const auto pick = styles.open(ListSide::pick);
    pick->choose_filter(1, styles.prompts);
    EXPECT_EQ(pick->caption() + column_of(*pick, 2), "Style Pick - BJCP StylesRenamed|Common|");
    EXPECT_EQ(pick->selected_record()->book, 1);
    EXPECT_EQ(styles.settings.style_book, StyleBook::aha) << "until the style is taken";
}

TEST(StyleList, WarnsBeforeItSaves) {
    Styles styles;
    const auto list = styles.open(ListSide::maintenance);
    styles.prompts.expect_tell("No changes have been made in the Styles Database!", Icon::information);
    list->save(styles.prompts);
    rename_first(*list, styles.prompts);
    styles.expect_question(
        "Guidelines Database!\nThese guidelines adhere to the pre-2000 AHA guidelines and changing "
        "them may affect validity.\nAre you sure you want to save the changes?",
        Answer::no, "yes/no");
    list->save(styles.prompts);
    styles.expect_question(
        "Guidlines Database!\nExiting now will not save the changes made.\nThese guidlines adhere "
        "to AHA guidlines and changing them may affect validity.\nDo you want to save the changes?",
        Answer::yes);
    EXPECT_TRUE(list->close(styles.prompts)) << "No left the change as it was";
    EXPECT_EQ(column_of(*styles.open(ListSide::pick), 2), "Renamed|Helles|Dry Stout|");
}

TEST(StyleEntry, DragsByArrowsAloneAndKeepsItsColours) {
    Settings settings;
    settings.color_units = ColorUnits::ebc_traditional;
    auto record = style(1, 'A', "Rice", "Junmai", BeerType::sake);
    record.min_og = 1.05F;
    record.max_og = 1.052F;
    record.min_colour = 0.1F; // shown as 0, which would not come back
    const auto before = record;
    Form form;
    style_entry_form(form, record, settings);
    form.accept();
    EXPECT_EQ(record, before);
    auto& low = dynamic_cast<EntryRow&>(form.row("min_og"));
    PlainField field("1.050");
    form.spin(low, field, Spin::up);
    EXPECT_EQ(record.max_og, record.min_og);
    field.content = "1.090";
    form.type(low, field);
    EXPECT_NEAR(record.max_og, 1.055, 1e-5) << "typing drags nothing";
}

} // namespace
} // namespace wortlex
