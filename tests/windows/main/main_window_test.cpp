#include "support/drop.h"
#include "support/started_brewery.h"
#include "windows/shelf/shelf_window.h"

#include <QDialog>
#include <QLabel>
#include <QMenuBar>
#include <QTreeView>

namespace wortlex {
namespace {

TEST(MainWindow, DisablesWhatIsNotBuilt) {
    OpenBrewery brewery;
    auto& window = brewery.main;
    int enabled = 0;
    for (const auto& button : main_screen_buttons()) {
        auto* const picture =
            window.findChild<QAbstractButton*>(QString::fromUtf8(button.picture.bitmap.data(), 4));
        const bool is_built = window.commands().is_built(button.command);
        EXPECT_EQ(picture->isEnabled(), is_built) << button.picture.name;
        for (const auto* const action :
             window.menuBar()->findChildren<QAction*>(QString::number(button.command)))
            EXPECT_EQ(action->isEnabled(), is_built) << button.picture.name;
        EXPECT_FALSE(picture->accessibleName().isEmpty());
        enabled += picture->isEnabled();
    }
    EXPECT_GT(enabled, 1);
    EXPECT_TRUE(window.menuBar()->findChild<QAction*>(QString::number(command::exit))->isEnabled());
}

TEST(MainWindow, OpensARecipeOnceAndShowsItsFigures) {
    OpenBrewery brewery;
    auto& window = brewery.main;
    const auto path = brewery.save_sample("Mild");
    window.open_file(path);
    auto* const recipe = open_recipe_window();
    ASSERT_NE(recipe, nullptr);
    EXPECT_EQ(recipe->windowTitle(), "Mild.rec - Wortlex Recipe Formulation");
    EXPECT_EQ(text_of(*recipe, "title"), "Mild");
    // 10 lb x 37 points x 76 % / 5 gallons = 56.24 points
    EXPECT_EQ(text_of(*recipe, "sg"), "1.056");
    auto* const malts = recipe->findChild<QTreeView*>("malts");
    EXPECT_EQ(malts->model()->rowCount(), 2);
    EXPECT_EQ(malts->model()->index(0, 0).data(), "Maris Otter");
    QTest::keyClick(recipe, Qt::Key_Escape);
    QTest::keyClick(recipe->findChild<QLineEdit*>("title"), Qt::Key_Return);
    EXPECT_TRUE(recipe->isVisible()) << "neither Esc nor Enter closes a document";
    brewery.prompts.expect_tell(
        "A recipe is open already, and only one can be.\nTo begin or open another, use "
        "the File menu of its window.",
        Icon::information);
    window.commands().start(command::new_recipe); // a second request only brings it forward
    EXPECT_EQ(brewery.program.document.recipe.title.view(), "Mild");
    EXPECT_EQ(brewery.program.recent_documents, RecentDocuments{path});
    QTest::mouseClick(recipe->findChild<QPushButton*>("ok"), Qt::LeftButton);
    EXPECT_FALSE(any_open(brewery.program.tools));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(activate_if_open(brewery.program.tools, command::open_recipe));
}

TEST(MainWindow, OpensARecipeDroppedOnAnyWindow) {
    OpenBrewery brewery;
    auto& window = brewery.main;
    const auto path = brewery.save_sample("Porter");
    save_atomically(brewery.folder / "notes.txt", Bytes(10));
    EXPECT_FALSE(drop_file(window, brewery.folder / "notes.txt"));
    EXPECT_EQ(open_recipe_window(), nullptr);
    EXPECT_TRUE(drop_file(window, path));
    auto* const recipe = open_recipe_window();
    ASSERT_NE(recipe, nullptr);
    EXPECT_EQ(text_of(*recipe, "title"), "Porter");
    EXPECT_TRUE(drop_file(*recipe->findChild<QLineEdit*>("title"), brewery.save_sample("Stout")));
    EXPECT_EQ(text_of(*open_recipe_window(), "title"), "Stout") << "a field takes no path for a text";
    QDialog question(&window);
    question.setModal(true);
    question.show();
    EXPECT_FALSE(drop_file(window, path)) << "a dialog waits";
    question.hide();
    EXPECT_TRUE(window.close());
    EXPECT_TRUE(std::filesystem::exists(brewery.folder / "WlxWin.pos"));
}

// Acts in the shelf once it is read, for as long as it stands open.
void in_shelf(const std::function<void(ShelfWindow&)>& act) {
    in_next<ShelfWindow>([act](ShelfWindow& shelf) {
        const auto* const found = shelf.findChild<QLabel*>("found");
        EXPECT_TRUE(QTest::qWaitFor([found] { return !found->text().contains("reading"); }));
        act(shelf);
    });
}

TEST(MainWindow, OpensFromTheShelfByKeysAndFromAnywhereByBrowsing) {
    OpenBrewery brewery;
    auto& window = brewery.main;
    set_folder(brewery.program.folders, FolderKind::recipes, brewery.folder.path());
    for (const auto* name : {"Brown Porter", "Mild", "Robust Porter"}) brewery.save_sample(name);
    save_atomically(brewery.folder / "Broken.rec", Bytes(300, std::byte{0xFF}));
    in_shelf([](ShelfWindow& shelf) {
        auto* const find = shelf.findChild<QLineEdit*>("find");
        EXPECT_EQ(shelf.findChild<QLabel*>("found")->text(), "4 recipes");
        QTest::keyClicks(find, "broken");
        QTest::keyClick(find, Qt::Key_Return);
        EXPECT_TRUE(shelf.isVisible()) << "a damaged recipe stays where it is";
        QTest::keyClick(find, Qt::Key_Escape);
        QTest::keyClicks(find, "porter og>1.05");
        QTest::keyClick(find, Qt::Key_Down);
        QTest::keyClick(find, Qt::Key_Return);
    });
    window.commands().start(command::open_recipe);
    ASSERT_NE(open_recipe_window(), nullptr);
    EXPECT_EQ(text_of(*open_recipe_window(), "title"), "Robust Porter");
    brewery.files.add(std::nullopt);
    brewery.files.add(brewery.folder / "Mild.rec");
    in_shelf([](ShelfWindow& shelf) {
        auto* const browse = shelf.findChild<QPushButton*>("browse");
        browse->click();
        EXPECT_TRUE(shelf.isVisible()) << "who leaves the dialog of files is back on the shelf";
        browse->click();
    });
    open_recipe_window()->findChild<QAction*>(QString::number(command::open_recipe))->trigger();
    EXPECT_EQ(text_of(*open_recipe_window(), "title"), "Mild");
    EXPECT_TRUE(window.close());
}

TEST(MainWindow, OffersRecentRecipesByKeyOrWelcomesANewBrewer) {
    OpenBrewery brewery;
    auto& window = brewery.main;
    auto& recent = brewery.program.recent_documents;
    const auto offered = [&](const char* name) {
        QApplication::processEvents();
        return window.findChild<QAbstractButton*>(QString::fromLatin1(name));
    };
    EXPECT_EQ(offered("recent_1")->accessibleName(), "Begin a new recipe") << "there is no sample here";
    offered("recent_1")->click();
    ASSERT_NE(open_recipe_window(), nullptr);
    EXPECT_TRUE(open_recipe_window()->close());
    recent = {brewery.save_sample("Mild"), brewery.folder / "gone.rec", brewery.folder / "day.brw"};
    QEvent activated(QEvent::WindowActivate);
    QApplication::sendEvent(&window, &activated);
    EXPECT_TRUE(offered("recent_2")->isVisible() && !offered("recent_2")->isEnabled());
    EXPECT_FALSE(offered("recent_3")->isVisible()) << "a session is no recipe";
    EXPECT_EQ(offered("recent_1")->shortcut(), QKeySequence(Qt::ALT | Qt::Key_1));
    QTest::keyClick(offered("recent_1"), Qt::Key_Return);
    EXPECT_EQ(text_of(*open_recipe_window(), "title"), "Mild");
    EXPECT_TRUE(window.close());
}

TEST(PictureBoard, TellsOfMissingPicturesOnceAShowing) {
    Brewery brewery;
    std::filesystem::remove(brewery.folder.path() + "art/cb01.bmp");
    std::filesystem::remove(brewery.folder.path() + "art/cb02.bmp");
    MainWindow window(brewery.ports());
    for (int showing = 0; showing < 2; ++showing) {
        brewery.prompts.expect("tell", "Error Reading FIle", {}, Icon::error, "File Error");
        window.show();
        QCoreApplication::processEvents();
        window.repaint();
        QCoreApplication::processEvents();
        EXPECT_FALSE(window.findChild<QAbstractButton*>("cb01")->isVisible());
        EXPECT_TRUE(window.findChild<QAbstractButton*>("cb04")->isVisible());
        window.hide();
    }
}

TEST(PictureBoard, ActsAsAButtonGoesDown) {
    OpenBrewery brewery;
    auto& window = brewery.main;
    auto* const board = window.centralWidget();
    const auto origin = main_screen_origin(board->width(), board->height());
    int started = 0;
    window.commands().carry_out(command::new_recipe, [&] { ++started; });
    const QPoint corner(origin.x + 86, origin.y + 76);
    const auto press = [&](QPoint at) {
        auto* const under = board->childAt(at);
        if (under != nullptr) QTest::mousePress(under, Qt::LeftButton, {}, under->mapFrom(board, at));
    };
    press(corner);
    press(corner + QPoint(64, 64));
    EXPECT_EQ(started, 2);
    press(corner + QPoint(65, 10));
    press(corner + QPoint(10, 65));
    EXPECT_EQ(started, 2) << "right and bottom edges belong to no button";
}

} // namespace
} // namespace wortlex
