#include "calculators/time_sheet.h"
#include "support/qt_keys.h"
#include "support/started_brewery.h"
#include "windows/calculators/gravity_dialogs.h"
#include "windows/main/tools.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QDialog>
#include <QPointer>
#include <QTimer>

namespace wortlex {
namespace {

struct ToolBench : Brewery {
    MainWindow main{ports()};

    // The tool of a command, active.
    QPointer<QWidget> open(int command) {
        main.commands().start(command);
        const auto name = QString::fromStdString(std::string(tool_of(command).window.template_name));
        for (auto* const window : QApplication::topLevelWidgets())
            if (window->isVisible() && window->objectName() == name) {
                EXPECT_TRUE(QTest::qWaitForWindowActive(window));
                return window;
            }
        ADD_FAILURE() << "no window of command " << command;
        return nullptr;
    }
};

QString shown_in(const QWidget& window, const char* key) {
    return line_of(*window.findChild<QWidget*>(QString::fromLatin1(key)))->text();
}

void type_in(const QWidget& window, const char* key, const char* text) {
    type_over(*line_of(*window.findChild<QWidget*>(QString::fromLatin1(key))), text);
}

TEST(BrewersTools, EveryToolOpensOnceAndIsToBeHadFromTheKeyboard) {
    ToolBench bench;
    for (const int command : {command::alcohol, command::boil_off, command::carbonation, command::dilution,
                              command::hydrometer, command::units, command::temporary_calibration,
                              command::raw_wort_gravity, command::fermentation_gravity,
                              command::residual_extract, command::date_calculator, command::time_line}) {
        const auto window = bench.open(command);
        ASSERT_TRUE(window);
        for (const auto* const line : window->findChildren<QLineEdit*>()) {
            const bool is_the_toolkits = window->findChild<QCalendarWidget*>() != nullptr;
            const auto names = line->accessibleName() + line->parentWidget()->accessibleName();
            EXPECT_TRUE(is_the_toolkits || !names.isEmpty()) << line->objectName().toStdString();
        }
        EXPECT_EQ(bench.open(command), window);
        QTest::keyClick(window, Qt::Key_Escape);
        EXPECT_FALSE(is_open(bench.program.tools, command));
    }
}

TEST(BrewersTools, ATemporaryCalibrationReachesOpenToolsAndEscTakesItBack) {
    ToolBench bench;
    const auto tool = bench.open(command::raw_wort_gravity);
    type_in(*tool, "brix", "13");
    const auto calibration = bench.open(command::temporary_calibration);
    type_in(*calibration, "factor", "1.3");
    EXPECT_EQ(shown_in(*tool, "gravity_plato"), "10.000");
    type_in(*calibration, "water_zeiss", "15.5");
    EXPECT_EQ(shown_in(*tool, "zeiss"), "67.36");
    QTest::keyClick(calibration, Qt::Key_Escape);
    EXPECT_EQ(shown_in(*tool, "gravity_plato"), "12.500");
    EXPECT_EQ(bench.program.settings.water_zeiss, 14.5F);
    tool->close();
    bench.program.notices.tell(Change::calibration); // nobody is left to hear it
}

TEST(BrewersTools, AlcoholHandsOverToTheRefractometer) {
    ToolBench bench;
    const auto alcohol = bench.open(command::alcohol);
    alcohol->findChild<QAbstractButton*>("refractometer")->click();
    EXPECT_FALSE(is_open(bench.program.tools, command::alcohol));
    bench.open(command::residual_extract)->close();
}

// Types into the dialog that comes up, and ends it with a key.
void answer_dialog(const char* key, const char* text, Qt::Key end) {
    QTimer::singleShot(0, [=] {
        auto* const dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        type_in(*dialog, key, text);
        QTest::keyClick(dialog, end);
    });
}

TEST(GravityDialogs, HandBackWhatWasMeasuredAndNothingOnCancel) {
    ToolBench bench;
    const auto ports = bench.ports();
    answer_dialog("temperature_fahrenheit", "100", Qt::Key_Return);
    EXPECT_NEAR(*correct_gravity(ports, &bench.main, 1.05F, HydrometerUse::mash), 1.05587, 1e-5);
    answer_dialog("temperature_fahrenheit", "100", Qt::Key_Escape);
    EXPECT_FALSE(correct_gravity(ports, &bench.main, 1.05F, HydrometerUse::session_gravity));

    RefractometerPair pair;
    answer_dialog("brix", "13", Qt::Key_Return);
    const auto sg =
        measure_raw_wort(ports, &bench.main, RefractometerUse::recorded_original, 1.05F, pair, {});
    EXPECT_NEAR(*sg, 1.05048, 1e-5);
    EXPECT_FLOAT_EQ(pair.plato, 12.5F);
    EXPECT_NEAR(pair.net_zeiss, 51.8568, 1e-3);
    answer_dialog("brix", "8", Qt::Key_Return);
    EXPECT_NEAR(*measure_finishing_gravity(ports, &bench.main, 12.387F, 3, pair, {}), 1.02035, 1e-5);

    AlcoholReading reading;
    answer_dialog("known_sg", "1.012", Qt::Key_Escape);
    EXPECT_FALSE(measure_alcohol(ports, &bench.main, 12.387F, 3.067F, reading, {}));
    EXPECT_FALSE(reading.is_entered());
    answer_dialog("zeiss", "39", Qt::Key_Return);
    EXPECT_TRUE(measure_alcohol(ports, &bench.main, 12.387F, 3.067F, reading, {}));
    EXPECT_EQ(reading.net_zeiss, 24.5F);
}

TEST(DateCalculator, CountsFromTodayBetweenItsCalendars) {
    ToolBench bench;
    const auto window = bench.open(command::date_calculator);
    EXPECT_EQ(shown_in(*window, "days"), "0");
    window->findChild<QCalendarWidget*>("start")->setSelectedDate(QDate(2027, 3, 27));
    window->findChild<QCalendarWidget*>("stop")->setSelectedDate(QDate(2027, 3, 29));
    EXPECT_EQ(shown_in(*window, "days"), "2");
    window->findChild<QCalendarWidget*>("start")->setSelectedDate(QDate(2027, 4, 1));
    EXPECT_EQ(shown_in(*window, "days"), "-3");
    window->close();
}

TEST(TimeSheetWindow, TakesABrewDayByKeyboardAndAsksBeforeItGoes) {
    ToolBench bench;
    const auto window = bench.open(command::time_line);
    answer_dialog("comment", "mash in", Qt::Key_Return);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_FALSE(window->findChild<QWidget*>("load")->isEnabled());
    auto* const list = window->findChild<QAbstractItemView*>("lines");
    EXPECT_EQ(list->model()->rowCount(), 2);
    answer_dialog("comment", "sparge", Qt::Key_Return);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(list->model()->rowCount(), 3);
    const auto expect_stop = [&bench](Answer answer) {
        bench.prompts.expect("yes/no",
                             "Are you sure you want to stop recording time increments and comments?", answer,
                             Icon::question);
    };
    expect_stop(Answer::no);
    bench.main.close();
    EXPECT_TRUE(window->isVisible()) << "the program does not end under a brew day";
    expect_stop(Answer::yes);
    window->findChild<QAbstractButton*>("stop")->click();
    bring_forward(*window);
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(list->model()->rowCount(), 1);
    bench.prompts.expect("yes/no/cancel",
                         "The current time line has been modified!\nDo you want to save the changes?",
                         Answer::no, Icon::question);
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_FALSE(is_open(bench.program.tools, command::time_line));
}

} // namespace
} // namespace wortlex
