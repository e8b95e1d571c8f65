// A brewery whose brewer has nothing but a keyboard.
#pragma once

#include "support/database_of.h"
#include "support/started_brewery.h"

#include <QDialog>
#include <QMenuBar>

namespace wortlex {

// A brewery with one entry in each database, and a recipe begun from the keyboard.
struct Kitchen : Brewery {
    std::unique_ptr<MainWindow> main;
    RecipeWindow* recipe = nullptr;
    QWidget* document = nullptr; ///< the recipe's window or a session's

    Kitchen() {
        StyleRecord style;
        style.name.assign("Blonde Ale");
        style.min_ibu = 15;
        style.max_ibu = 28;
        for (const bool bjcp : {false, true}) SaveStyles(folder.path(), bjcp, database_of(style));
        auto pale = malt(MaltType::grain, 1.037F, 0, true).record;
        pale.name.assign("Pale Malt");
        SaveMalts(folder.path(), database_of(pale));
        HopRecord hop;
        hop.name.assign("Cascade");
        hop.alpha = 6;
        SaveHops(folder.path(), database_of(hop));
        YeastRecord yeast;
        yeast.name.assign("House Yeast");
        SaveYeasts(folder.path(), database_of(yeast));
        ExtraRecord extra;
        extra.name.assign("Irish Moss");
        SaveExtras(folder.path(), database_of(extra));
        SaveWater(folder.path(), database_of(water()));
        main = std::make_unique<MainWindow>(ports());
        main->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(main.get()));
    }
    static WaterRecord water() {
        WaterRecord water;
        water.name.assign("Soft Water");
        return water;
    }

    void begin() {
        press(Qt::Key_N, Qt::ControlModifier);
        recipe = open_recipe_window();
        ASSERT_NE(recipe, nullptr);
        document = recipe;
        activate(recipe);
    }

    static void activate(QWidget* window) {
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        auto* const focus = QApplication::focusWidget();
        QTest::keyClick(focus != nullptr ? focus : QApplication::activeWindow(), key, with);
    }
    static void type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    // Where the tab key leads in the end.
    static void tab_to(const char* name) {
        const auto there = [name] {
            const auto* const focus = QApplication::focusWidget();
            return focus != nullptr && focus->objectName() == QLatin1String(name);
        };
        for (int i = 0; i < 120 && !there(); ++i) press(Qt::Key_Tab);
        EXPECT_TRUE(there()) << "no way by keyboard to " << name;
    }
    // Presses a key that opens a list, in which Enter then picks the first entry. A button that is pressed by
    // its letter acts a moment later.
    static void pick_by(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        auto* const window = QApplication::activeWindow();
        bool is_picked = false;
        in_next<QDialog>([&](QDialog& list) {
            QTest::keyClick(list.findChild<QWidget*>("list"), Qt::Key_Return);
            is_picked = true;
        });
        press(key, with);
        EXPECT_TRUE(QTest::qWaitFor([&] { return is_picked; }));
        activate(window);
    }
    // A page that Alt and a letter open, and that Ctrl and Enter close from wherever one is.
    void on_page(Qt::Key letter, const std::function<void()>& work) {
        press(letter, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() != document; }));
        work();
        press(Qt::Key_Return, Qt::ControlModifier);
        activate(document);
    }
};

} // namespace wortlex
