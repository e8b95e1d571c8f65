#include "base/files.h"
#include "support/qt_keys.h"
#include "support/started_brewery.h"
#include "water/water_chart.h"

#include <gtest/gtest.h>

#include <QPushButton>

namespace wortlex {
namespace {

// The main window of a brewery, and the tools that it opens.
struct Tools {
    Brewery brewery;
    MainWindow main{brewery.ports()};

    QWidget& open(int tool, const char* name) {
        main.commands().start(tool);
        return at_work(*shown(name));
    }
    static QWidget& at_work(QWidget& window) {
        bring_forward(window);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        return window;
    }
    static QWidget* shown(const char* name) {
        for (auto* const window : QApplication::topLevelWidgets())
            if (window->objectName() == name && window->isVisible()) return window;
        return nullptr;
    }
};

// Whether a window is painted anew from here on.
struct Painted : QObject {
    bool is_painted = false;

    explicit Painted(QWidget& window) { window.installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        is_painted = is_painted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
};

TEST(WaterCalculatorWindow, ItsChartFollowsEachKeyAndBecomesAPicture) {
    Tools tools;
    auto& window = tools.open(command::water_profile, "CHEMICALDIALOG");
    press(window, "show_graph");
    auto* const chart = Tools::shown("WATERGRAPHDIALOG");
    ASSERT_NE(chart, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(chart));
    press(window, "show_graph");
    EXPECT_EQ(Tools::shown("WATERGRAPHDIALOG"), chart) << "once at most";
    QApplication::processEvents();
    Painted painted(*chart->findChild<QWidget*>("chart"));
    type_over(*line_of(*window.findChild<QWidget*>("gypsum_rate")), "2");
    QTRY_VERIFY(painted.is_painted);
    EXPECT_EQ(text_of(window, "totals_sulfate"), "294.8");
    tools.brewery.files.add("burton.jpg");
    press(*chart, "jpg");
    const auto& picture = tools.brewery.pictures.files.at("burton.jpg");
    EXPECT_EQ(picture.height, water_chart_window.height - 30);
    press(*chart, "print");
    EXPECT_EQ(tools.brewery.pages.jobs.size(), 1U);
    QTest::keyClick(chart, Qt::Key_Escape);
    Tools::at_work(window);
    tools.brewery.prompts.expect(
        "yes/no/cancel", "The current water profile has been modified!\nDo you want to save the changes?",
        Answer::cancel, Icon::question);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    const auto path = tools.brewery.folder / "burton.wtr";
    tools.brewery.files.add(path);
    QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(stamp_of(path));
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(is_open(tools.brewery.program.tools, command::water_profile));
}

TEST(WaterNeedsWindow, ReadsItsFileAtEveryOpening) {
    Tools tools;
    auto& program = tools.brewery.program;
    auto& window = tools.open(command::water_needed, "WATERNEEDSDIALOG");
    type_over(*line_of(*window.findChild<QWidget*>("sparge")), "5");
    tools.brewery.prompts.expect("yes/no", "Really Overwrite the Default Water Usage Data?", Answer::yes,
                                 Icon::question);
    press(window, "save_default");
    EXPECT_EQ(program.water_usage.sparge, 5) << "a new session begins with it";
    type_over(*line_of(*window.findChild<QWidget*>("sparge")), "7");
    program.settings.cooling_shrink = 0.5F;
    program.notices.tell(Change::settings);
    EXPECT_EQ(text_of(window, "after_cooling"), "  3.50");
    QTest::keyClick(&window, Qt::Key_Escape);
    auto& again = tools.open(command::water_needed, "WATERNEEDSDIALOG");
    EXPECT_EQ(text_of(again, "needed"), "  5.00");
    again.close();
}

} // namespace
} // namespace wortlex
