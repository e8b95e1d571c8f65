#include "base/number.h"
#include "base/ports/quiet_prompts.h"
#include "support/qt_keys.h"
#include "support/recording_clipboard.h"
#include "support/recording_desk.h"
#include "support/recording_surface.h"
#include "support/scripted_files.h"
#include "windows/documents/simple_mash_window.h"
#include "windows/main/main_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>
#include <QPushButton>

namespace wortlex {
namespace {

// What a document window hears from its page.
struct Page {
    Program program;
    ScriptedPrompts prompts;
    float grain = 10;
    std::vector<std::string> heard;

    SimpleMashWindow& open(bool has_complex) {
        program.settings.volume_units = Units::american;
        SimpleMash mash;
        mash.dough_in_water = 12;
        SimpleMashCalls calls{.mash_grain = [this] { return grain; },
                              .accepted =
                                  [this](const SimpleMashWork& taken) {
                                      heard.push_back(formatted("%0.2f", taken.mash.dough_in_water));
                                  },
                              .save = [this] { heard.emplace_back("saved"); },
                              .revert_to_complex = nullptr};
        if (has_complex) calls.revert_to_complex = [this] { heard.emplace_back("complex"); };
        auto* const window =
            new SimpleMashWindow(open_simple_mash(mash, 0, grain, program.settings), program.settings,
                                 MashSide::recipe, calls, prompts, places(program), nullptr);
        window->closed = [this] { heard.emplace_back("closed"); };
        bring_forward(*window);
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
        return *window;
    }
};

TEST(SimpleMashWindow, HandsOnWhatOkAccepts) {
    Page page;
    auto& left = page.open(false);
    EXPECT_FALSE(left.findChild<QPushButton*>("revert")->isEnabled());
    type_over(*line_of(*left.findChild<QWidget*>("quarts")), "15");
    QTest::keyClick(&left, Qt::Key_S, Qt::ControlModifier);
    QTest::keyClick(&left, Qt::Key_Escape);
    EXPECT_EQ(page.heard, (std::vector<std::string>{"15.00", "saved", "closed"}));
    page.heard.clear();
    auto& reverted = page.open(true);
    page.grain = 20;
    page.program.notices.tell(Change::document);
    reverted.findChild<QPushButton*>("revert")->click();
    EXPECT_EQ(page.heard, (std::vector<std::string>{"24.00", "closed", "complex"}));
}

TEST(StrikeCalculatorWindow, OpensOnceAndKeepsItsValuesForTheRun) {
    Program program;
    QuietPrompts prompts;
    ScriptedFiles files;
    RecordingPageDesk pages;
    RecordingClipboard clipboard;
    RecordingEasel easel;
    FakePictures pictures;
    MainWindow main({program, prompts, files, pages, clipboard, easel, pictures});
    const auto open = [&main] {
        main.commands().start(command::strike_temperature);
        const auto windows = QApplication::topLevelWidgets();
        const auto is_tool = [](const QWidget* w) { return w->objectName() == "WATERCALCDIALOG2"; };
        EXPECT_EQ(std::count_if(windows.begin(), windows.end(), is_tool), 1);
        return *std::find_if(windows.begin(), windows.end(), is_tool);
    };
    const QPointer<QWidget> first = open();
    type_over(*line_of(*first->findChild<QWidget*>("pounds")), "8");
    EXPECT_EQ(open(), first);
    first->close();
    EXPECT_FALSE(is_open(program.tools, command::strike_temperature));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    auto* const second = open();
    EXPECT_EQ(line_of(*second->findChild<QWidget*>("pounds"))->text(), "8.00");
    EXPECT_EQ(line_of(*second->findChild<QWidget*>("quarts_per_pound"))->text(), "1.50");
    second->close();
}

} // namespace
} // namespace wortlex
