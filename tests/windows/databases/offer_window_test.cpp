#include "databases/shipped.h"
#include "support/database_of.h"
#include "support/started_brewery.h"

#include <QDialog>

namespace wortlex {
namespace {

// A program that brings a water along which its brewery does not know.
struct NewVersion : OpenBrewery {
    TemporaryFolder shipped;

    NewVersion() {
        const auto waters = database_of(WaterRecord{.name = Text<27>("Pilsen"), .known_for = {}});
        SaveWater(shipped.path(), waters);
        ShippedNames names;
        note(folder, names);
        add_names(names, water_catalogue(program.settings, "", {}), waters);
        note(shipped, names);
    }
    static void note(const TemporaryFolder& in, const ShippedNames& names) {
        save_atomically(in.path() + std::string(shipped_names_file), shipped_names_bytes(names));
    }
    // Whether the window came up; what the brewer does there then closes it.
    bool offer(const std::function<void(QDialog&)>& answer) {
        bool is_offered = false;
        QTimer::singleShot(0, &main, [&] {
            auto* const window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (window == nullptr) return;
            is_offered = true;
            answer(*window);
        });
        main.offer_new_entries(shipped.path());
        QApplication::processEvents();
        return is_offered;
    }
};

TEST(OfferWindow, AddsByItsButtonAloneAndAsksUntilItIsAnswered) {
    NewVersion version;
    const auto& waters = version.program.water_database;
    for (const auto key : {Qt::Key_Return, Qt::Key_Escape}) {
        EXPECT_TRUE(version.offer([key](QDialog& window) { QTest::keyClick(window.focusWidget(), key); }));
        EXPECT_EQ(waters.count, 0);
    }
    EXPECT_TRUE(version.offer([](QDialog& window) {
        auto* const add = window.findChild<QPushButton*>("add");
        QTest::keyClick(window.focusWidget(), Qt::Key_Space);
        EXPECT_FALSE(add->isEnabled()) << "nothing is checked";
        window.findChild<QPushButton*>("toggle")->click();
        add->click();
    }));
    ASSERT_EQ(waters.count, 1) << "also in memory";
    EXPECT_EQ(waters.slots[0].name.view(), "Pilsen");
    EXPECT_FALSE(version.offer(nullptr));
}

} // namespace
} // namespace wortlex
