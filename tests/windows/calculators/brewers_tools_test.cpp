#include "support/started_brewery.h"
#include "windows/calculators/gravity_dialogs.h"

#include <QAbstractItemView>
#include <QCalendarWidget>

namespace wortlex {
namespace {

TEST(BrewersTools, ATemporaryCalibrationReachesOpenToolsAndEscTakesItBack) {
    OpenBrewery bench;
    auto& tool = bench.tool(command::raw_wort_gravity);
    type_into(tool, "brix", "13");
    auto& calibration = bench.tool(command::temporary_calibration);
    type_into(calibration, "factor", "1.3");
    EXPECT_EQ(text_of(tool, "gravity_plato"), "10.000");
    type_into(calibration, "water_zeiss", "15.5");
    EXPECT_EQ(text_of(tool, "zeiss"), "67.36");
    QTest::keyClick(&calibration, Qt::Key_Escape);
    EXPECT_EQ(text_of(tool, "gravity_plato"), "12.500");
    EXPECT_EQ(bench.program.settings.water_zeiss, 14.5F);
    tool.close();
    bench.program.notices.tell(Change::calibration); // nobody is left to hear it
}

TEST(BrewersTools, AlcoholHandsOverToTheRefractometer) {
    OpenBrewery bench;
    press(bench.tool(command::alcohol), "refractometer");
    EXPECT_FALSE(is_open(bench.program.tools, command::alcohol));
    bench.tool(command::residual_extract).close();
}

// Types into the dialog that comes up, and ends it with a key.
void answer_dialog(const char* key, const char* text, Qt::Key end) {
    in_next([=](QWidget& dialog) {
        type_into(dialog, key, text);
        QTest::keyClick(&dialog, end);
    });
}

TEST(GravityDialogs, HandBackNothingOnCancel) {
    OpenBrewery bench;
    answer_dialog("temperature_fahrenheit", "100", Qt::Key_Escape);
    EXPECT_FALSE(correct_gravity(bench.ports(), &bench.main, 1.05F, HydrometerUse::session_gravity));
    AlcoholReading reading;
    answer_dialog("known_sg", "1.012", Qt::Key_Escape);
    EXPECT_FALSE(measure_alcohol(bench.ports(), &bench.main, 12.387F, 3.067F, reading, {}));
    EXPECT_FALSE(reading.is_entered());
}

TEST(DateCalculator, CountsFromTodayBetweenItsCalendars) {
    OpenBrewery bench;
    auto& window = bench.tool(command::date_calculator);
    EXPECT_EQ(text_of(window, "days"), "0");
    window.findChild<QCalendarWidget*>("start")->setSelectedDate(QDate(2027, 3, 27));
    window.findChild<QCalendarWidget*>("stop")->setSelectedDate(QDate(2027, 3, 29));
    EXPECT_EQ(text_of(window, "days"), "2");
    window.findChild<QCalendarWidget*>("start")->setSelectedDate(QDate(2027, 4, 1));
    EXPECT_EQ(text_of(window, "days"), "-3");
    window.close();
}

TEST(TimeSheetWindow, TakesABrewDayByKeyboardAndAsksBeforeItGoes) {
    OpenBrewery bench;
    auto& window = bench.tool(command::time_line);
    answer_dialog("comment", "mash in", Qt::Key_Return);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_FALSE(window.findChild<QWidget*>("load")->isEnabled());
    auto* const list = window.findChild<QAbstractItemView*>("lines");
    EXPECT_EQ(list->model()->rowCount(), 2);
    answer_dialog("comment", "sparge", Qt::Key_Return);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(list->model()->rowCount(), 3);
    const auto expect_stop = [&bench](Answer answer) {
        bench.prompts.expect_yes_no("Are you sure you want to stop recording time increments and comments?",
                                    answer);
    };
    expect_stop(Answer::no);
    bench.main.close();
    EXPECT_TRUE(window.isVisible()) << "the program does not end under a brew day";
    expect_stop(Answer::yes);
    press(window, "stop");
    OpenBrewery::at_work(window);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(list->model()->rowCount(), 1);
    bench.prompts.expect_save("time line", Answer::no);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(is_open(bench.program.tools, command::time_line));
}

} // namespace
} // namespace wortlex
