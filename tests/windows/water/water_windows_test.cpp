#include "base/files.h"
#include "support/started_brewery.h"
#include "water/water_chart.h"
#include "windows/water/water_chart_window.h"

namespace wortlex {
namespace {

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
    OpenBrewery brewery;
    auto& window = brewery.tool(command::water_profile);
    press(window, "show_graph");
    auto* const chart = seen_window<WaterChartWindow>();
    ASSERT_NE(chart, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(chart));
    press(window, "show_graph");
    EXPECT_EQ(seen_window<WaterChartWindow>(), chart) << "once at most";
    QApplication::processEvents();
    Painted painted(*chart->findChild<QWidget*>("chart"));
    type_into(window, "gypsum_rate", "2");
    QTRY_VERIFY(painted.is_painted);
    EXPECT_EQ(text_of(window, "totals_sulfate"), "294.8");
    brewery.files.add("burton.jpg");
    press(*chart, "jpg");
    const auto& picture = brewery.pictures.files.at("burton.jpg");
    EXPECT_EQ(picture.height, water_chart_window.height - 30);
    press(*chart, "print");
    EXPECT_EQ(brewery.pages.jobs.size(), 1U);
    QTest::keyClick(chart, Qt::Key_Escape);
    OpenBrewery::at_work(window);
    brewery.prompts.expect_save("water profile", Answer::cancel);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    const auto path = brewery.folder / "burton.wtr";
    brewery.files.add(path);
    QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(stamp_of(path));
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(is_open(brewery.program.tools, command::water_profile));
}

TEST(WaterNeedsWindow, ReadsItsFileAtEveryOpening) {
    OpenBrewery brewery;
    auto& program = brewery.program;
    auto& window = brewery.tool(command::water_needed);
    type_into(window, "sparge", "5");
    brewery.prompts.expect_yes_no("Really Overwrite the Default Water Usage Data?", Answer::yes);
    press(window, "save_default");
    EXPECT_EQ(program.water_usage.sparge, 5) << "a new session begins with it";
    type_into(window, "sparge", "7");
    program.settings.cooling_shrink = 0.5F;
    program.notices.tell(Change::settings);
    EXPECT_EQ(text_of(window, "after_cooling"), "  3.50");
    QTest::keyClick(&window, Qt::Key_Escape);
    auto& again = brewery.tool(command::water_needed);
    EXPECT_EQ(text_of(again, "needed"), "  5.00");
    again.close();
}

} // namespace
} // namespace wortlex
