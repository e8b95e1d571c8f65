#include "support/started_brewery.h"
#include "windows/help/handbook_window.h"
#include "windows/help/help.h"

#include <QTextBlock>
#include <QWhatsThis>

namespace wortlex {
namespace {

// Keys of a window are heard while it is in use.
HandbookWindow* use_handbook() {
    auto* const handbook = seen_window<HandbookWindow>();
    if (handbook == nullptr) throw std::logic_error("the handbook is not open");
    OpenBrewery::at_work(*handbook);
    return handbook;
}

QString title_of(const HandbookWindow& window) {
    return window.findChild<QTextBrowser*>()->document()->firstBlock().text();
}

TEST(Help, EveryWindowHasAPage) {
    const auto handbook = shipped_handbook();
    const auto check = [&](const WindowInfo& window) {
        EXPECT_NE(handbook.topic(window.help_page), nullptr) << window.template_name << window.help_page;
    };
    for (const auto& window : all_windows()) check(window);
    for (const auto& tool : tools()) {
        if (has_window(tool)) check(tool.window);
        if (!tool.help_page.empty() && tool.help_page != contents_page) {
            EXPECT_NE(handbook.topic(tool.help_page), nullptr) << tool.help_page;
        }
    }
}

TEST(Help, OpensThePageOfItsWindowInOneHandbook) {
    OpenBrewery program;
    auto& hydrometer = program.tool(command::hydrometer);
    auto* const button = hydrometer.findChild<QPushButton*>("help");
    ASSERT_TRUE(button->isEnabled());
    button->click();
    auto* const handbook = seen_window<HandbookWindow>();
    ASSERT_NE(handbook, nullptr);
    EXPECT_EQ(title_of(*handbook), "Hydrometer");
    QTest::keyClick(hydrometer.focusWidget(), Qt::Key_F1);
    QTest::keyClick(&program.main, Qt::Key_F1);
    EXPECT_EQ(seen_window<HandbookWindow>(), handbook);
    EXPECT_EQ(title_of(*handbook), "The main window");
    program.main.commands().start(command::help_contents);
    EXPECT_EQ(title_of(*handbook), "Wortlex handbook");
    use_handbook();
    QTest::keyClick(handbook, Qt::Key_Left, Qt::AltModifier);
    QTest::keyClick(handbook, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(title_of(*handbook), "Hydrometer");
    EXPECT_EQ(handbook->findChild<QTextBrowser*>()->accessibleName(), "Hydrometer");
    hydrometer.close();
    use_handbook();
    EXPECT_FALSE(any_open(program.program.tools)) << "the settings may be changed beside the handbook";
    QTest::keyClick(handbook, Qt::Key_Escape);
    EXPECT_FALSE(handbook->isVisible());
    program.main.commands().start(command::tutorials);
    QTest::keyClick(use_handbook(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(title_of(*seen_window<HandbookWindow>()), "Hydrometer") << "what was read before it was closed";
}

// Blocks that are set in, as examples are.
int dressed_blocks(const HandbookWindow& handbook) {
    int dressed = 0;
    const auto* const page = handbook.findChild<QTextBrowser*>()->document();
    for (auto block = page->begin(); block.isValid(); block = block.next())
        dressed += block.blockFormat().hasProperty(QTextFormat::BlockCodeFence) &&
                   !block.blockFormat().nonBreakableLines();
    return dressed;
}

TEST(Help, APageLooksTheSameHoweverItIsComeTo) {
    OpenBrewery program;
    auto& hydrometer = program.tool(command::hydrometer);
    hydrometer.findChild<QPushButton*>("help")->click();
    hydrometer.close();
    auto* const handbook = use_handbook();
    const int dressed = dressed_blocks(*handbook);
    EXPECT_GT(dressed, 0);
    QTest::keyClick(&program.main, Qt::Key_F1);
    const auto* const page = handbook->findChild<QTextBrowser*>()->document();
    const auto wide = page->idealWidth();
    handbook->resize(handbook->width() - 100, handbook->height());
    EXPECT_LT(page->idealWidth(), wide) << "pictures fit the window";
    use_handbook();
    QTest::keyClick(handbook, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(dressed_blocks(*handbook), dressed);
}

TEST(Help, StandsAtTheEdgeOfTheScreenAndThenWhereItWasPut) {
    OpenBrewery program;
    const auto right = program.main.screen()->availableGeometry().right() + 1;
    program.main.commands().start(command::help_contents);
    auto* const handbook = seen_window<HandbookWindow>();
    EXPECT_EQ(handbook->pos().x() + handbook->width(), right);
    EXPECT_GT(handbook->height(), handbook->width());
    const QRect put(20, 30, 500, 300);
    handbook->setGeometry(put);
    handbook->close();
    Help again(program.main, places(program.program), program.pages);
    again.open(contents_page);
    EXPECT_EQ(seen_window<HandbookWindow>()->geometry(), put);
}

TEST(Help, FindsAndMarksWordsAndLeavesTheHandbookByNoLink) {
    OpenBrewery program;
    program.main.commands().start(command::help_contents);
    auto* const handbook = use_handbook();
    EXPECT_FALSE(handbook->findChild<QTreeWidget*>("contents")->isVisible()) << "the page has the room";
    handbook->resize(150 * handbook->fontMetrics().averageCharWidth(), 500);
    auto* const find = handbook->findChild<QLineEdit*>("find");
    QTest::keyClick(handbook, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(find, "tinseth");
    auto* const found = handbook->findChild<QListWidget*>("found");
    ASSERT_TRUE(found->isVisible());
    EXPECT_TRUE(found->item(0)->text().startsWith("Bitterness"));
    QTest::keyClick(find, Qt::Key_Down);
    auto* const page = handbook->findChild<QTextBrowser*>();
    EXPECT_EQ(title_of(*handbook), "Bitterness");
    EXPECT_GT(page->extraSelections().size(), 2);
    for (const auto* const link : {"https://example.org/hops.md", "file:///etc/hops.md", "nowhere.txt"}) {
        page->setSource(QUrl(QString::fromLatin1(link)));
        EXPECT_EQ(title_of(*handbook), "Bitterness") << link;
    }
    find->setFocus();
    QTest::keyClick(find, Qt::Key_Escape);
    EXPECT_TRUE(find->text().isEmpty());
    EXPECT_TRUE(handbook->findChild<QTreeWidget*>("contents")->isVisible());
    EXPECT_TRUE(handbook->isVisible()) << "Esc clears the line first";
    handbook->findChild<QPushButton*>("print")->click();
    EXPECT_EQ(program.pages.jobs.size(), 1U);
}

TEST(Help, TellsOfTheFieldInUse) {
    OpenBrewery program;
    auto& carbonation = program.tool(command::carbonation);
    QTest::keyClick(carbonation.findChild<QWidget*>("level"), Qt::Key_F1, Qt::ShiftModifier);
    const auto windows = QApplication::topLevelWidgets();
    EXPECT_TRUE(std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->isVisible() && QString(window->metaObject()->className()) == "QWhatsThat";
    }));
    QWhatsThis::hideText();
    EXPECT_EQ(seen_window<HandbookWindow>(), nullptr);
    carbonation.close();
}

} // namespace
} // namespace wortlex
