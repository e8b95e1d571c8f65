#include "support/qt_keys.h"
#include "support/started_brewery.h"
#include "windows/documents/simple_mash_window.h"
#include "windows/mash/mash_chart_window.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QPointer>
#include <QPushButton>

namespace wortlex {
namespace {

TEST(MashChartWindow, FollowsTheScheduleBesideItAndClosesWithIt) {
    Brewery brewery;
    const auto ports = brewery.ports();
    SimpleMash mash;
    mash.saccharification = {152, 60};
    SimpleMashCalls calls{.mash_grain = [] { return 10.0F; },
                          .accepted = nullptr,
                          .save = nullptr,
                          .revert_to_complex = nullptr};
    calls.graph = [&ports](const SimpleMashWork& work, QWidget* origin) {
        open_mash_chart(
            ports, "MASHGRAPHDIALOG", [&work] { return charted(work.mash, nullptr); }, origin);
    };
    auto* const window = new SimpleMashWindow(open_simple_mash(mash, 0, 10, brewery.program.settings),
                                              brewery.program.settings, MashSide::recipe, calls,
                                              brewery.prompts, places(brewery.program), nullptr);
    bring_forward(*window);
    press(*window, "graph");
    press(*window, "graph");
    const auto charts = window->findChildren<QWidget*>("MASHGRAPHDIALOG");
    ASSERT_EQ(charts.size(), 1) << "once at most";
    const QPointer<QWidget> chart(charts.front());
    const auto picture = [&] {
        brewery.files.add("mash.jpg");
        press(*chart, "jpg");
        return brewery.easel.surface.lines;
    };
    EXPECT_THAT(picture(), testing::Contains(testing::EndsWith(" 160 F")));
    EXPECT_EQ(brewery.pictures.files.at("mash.jpg").height, 351);
    type_over(*line_of(*window->findChild<QWidget*>("saccharification_temperature")), "142");
    EXPECT_THAT(picture(), testing::Contains(testing::EndsWith(" 150 F")));
    EXPECT_FALSE(chart->findChild<QCheckBox*>("infusion_spikes")->isEnabled());
    press(*chart, "print");
    EXPECT_EQ(brewery.pages.jobs.size(), 1U);
    brewery.program.settings.save_window_positions = 1;
    chart->move(40, 50);
    EXPECT_EQ(brewery.program.tool_positions.slots[32].top, 50) << "the place of a recipe's chart";
    brewery.answer_page(Answer::no);
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(chart.isNull());
}

} // namespace
} // namespace wortlex
