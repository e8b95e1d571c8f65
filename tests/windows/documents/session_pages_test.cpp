#include "desktop/list_view.h"
#include "support/database_of.h"
#include "support/started_brewery.h"
#include "windows/calculators/date_dialogs.h"
#include "windows/documents/inventory_window.h"
#include "windows/documents/session_mash_window.h"

#include <gmock/gmock.h>

#include <QCalendarWidget>

namespace wortlex {
namespace {

// A session under work, with one malt of which there is too little.
struct SessionDesk : Brewery {
    RecipeEditor editor{start_session(program), {}, {}};

    SessionDesk() {
        editor.notices = &program.notices;
        auto& recipe = program.document.recipe;
        recipe.malts = {malt(MaltType::grain, 1.037F, 10)};
        recipe.malts[0].record.name.assign("Maris Otter");
        recipe.simple_mash.saccharification = {152, 60};
        recipe.simple_mash.dough_in_water = 10;
        recipe.mash.grain_temperature = 60;
        mash_refresh(editor.open);
        program.document.water_to_grain = 0;
        start_editing(editor, {});
        stock(4);
        SaveHops(folder.path(), {});
        SaveExtras(folder.path(), {});
        SaveYeasts(folder.path(), {});
    }
    static OpenDocument start_session(Program& program) {
        new_session(program, {25, 1, 2001});
        return live_document(program);
    }
    void stock(float pounds) const {
        auto stocked = program.document.recipe.malts[0].record;
        stocked.stock = pounds;
        SaveMalts(folder.path(), database_of(stocked));
    }
    template <class Window>
    static Window& shown(Window* window) {
        bring_forward(*window);
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
        return *window;
    }
    SimpleMashWindow& mash() {
        const auto printed = [] { return PrintedSession{}; };
        return shown(make_session_mash_window(
            ports(), editor, {.printed = printed, .save = nullptr, .revert_to_complex = nullptr}, nullptr));
    }
};

TEST(InventoryWindow, FollowsTheSessionAndTheDatabases) {
    SessionDesk desk;
    auto& window = desk.shown(new InventoryWindow(desk.ports(), nullptr));
    auto& model = *window.findChild<ListView*>()->model();
    const auto first_line = [&model] {
        QStringList cells;
        for (int column = 0; column < 5; ++column)
            cells << model.index(1, column).data().toString().trimmed();
        return cells.join('|').toStdString();
    };
    EXPECT_EQ(first_line(), "Maris Otter|10.00|4.00|6.00|*");
    EXPECT_TRUE(model.index(0, 0).data(Qt::FontRole).value<QFont>().bold()) << "the head of the malts";
    EXPECT_FALSE(model.index(1, 0).data(Qt::FontRole).isValid());
    desk.stock(12);
    desk.program.notices.tell(Change::databases);
    EXPECT_EQ(first_line(), "Maris Otter|10.00|12.00|0.00|");
    edit(desk.editor, "Amount", [&] { desk.program.document.recipe.malts[0].amount = 13; });
    EXPECT_EQ(first_line(), "Maris Otter|13.00|12.00|1.00|*");
    press(window, "copy");
    EXPECT_THAT(desk.clipboard.texts, testing::ElementsAre(testing::StartsWith(
                                          "Inventory Analysis For Brewing Session\r\nGrain/Malt\tRecipe ")));
    press(window, "print");
    EXPECT_THAT(texts_on(desk.pages.jobs.front(), 0),
                testing::Contains(testing::HasSubstr("Wortlex Inventory Analysis For Brewing Session")));
    QTest::keyClick(&window, Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
}

TEST(SessionMashWindow, OnlyTheHeatTypeSurvivesCancel) {
    SessionDesk desk;
    auto& session = desk.program.document.session;
    auto& left = desk.mash();
    left.findChild<QWidget*>("heat_type")->findChildren<QAbstractButton*>().back()->click();
    type_into(left, "wort_ph", "5.2");
    desk.answer_page(Answer::no);
    QTest::keyClick(&left, Qt::Key_Escape);
    EXPECT_EQ(session.infusions.heat_type, SimpleHeat::infusion);
    EXPECT_FLOAT_EQ(session.wort_ph, 5.5F);
    EXPECT_EQ(desk.editor.history.to_undo(), "Heat Type");

    auto& kept = desk.mash();
    type_into(kept, "wort_ph", "5.2");
    type_into(kept, "mash_out_temperature", "168");
    type_into(kept, "mash_out_minutes", "10");
    type_into(kept, "mash_out_infusion", "210");
    QTest::keyClick(&kept, Qt::Key_Return);
    EXPECT_TRUE(kept.isVisible()) << "Enter ends the field";
    desk.answer_page(Answer::yes);
    kept.close();
    EXPECT_FLOAT_EQ(session.wort_ph, 5.2F);
    EXPECT_FLOAT_EQ(session.infusions.mash_out.amount, 16.0F * 12 / 42);
    EXPECT_FLOAT_EQ(session.water_needs.mash_water, (10 + 16.0F * 12 / 42) / 4) << "the water follows";
    EXPECT_TRUE(undo(desk.editor));
    EXPECT_FLOAT_EQ(session.wort_ph, 5.5F) << "one step";
}

TEST(SessionMashWindow, TakesItsDoughInFromTheStrikeWater) {
    SessionDesk desk;
    auto& window = desk.mash();
    in_next([](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Dough In Strike Water Temperature");
        EXPECT_EQ(text_of(dialog, "wanted"), "152");
        type_into(dialog, "grain_temperature", "72");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    press(window, "calculate_strike");
    EXPECT_EQ(text_of(window, "dough_in_temperature"), "168") << "0.2 / 1 x 80 + 152";
    EXPECT_EQ(desk.program.document.recipe.mash.grain_temperature, 72);
    desk.answer_page(Answer::no);
    window.close();
}

TEST(BrewingDate, CanBePickedInEitherMonth) {
    SessionDesk desk;
    const auto picked = [&](const std::function<void(QWidget&)>& user) {
        in_next(user);
        return pick_brewing_date(desk.ports(), nullptr, {31, 1, 2004});
    };
    EXPECT_EQ(picked([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }), std::nullopt);
    const auto later = picked([](QWidget& dialog) {
        auto& grow = *dialog.findChild<QPushButton*>("grow");
        EXPECT_EQ(grow.text(), "&Grow");
        grow.click();
        EXPECT_EQ(grow.text(), "&Shrink");
        auto& next = *dialog.findChild<QCalendarWidget*>("next_month");
        EXPECT_EQ(next.monthShown(), 2);
        next.setSelectedDate(QDate(2004, 2, 29));
        EXPECT_EQ(dialog.findChild<QCalendarWidget*>("date")->monthShown(), 1) << "the months stay";
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(later, (CalendarDate{29, 2, 2004}));
}

} // namespace
} // namespace wortlex
