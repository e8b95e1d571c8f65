#include "databases/hops.h"
#include "databases/messages.h"
#include "desktop/form_dialog.h"
#include "support/drop.h"
#include "support/qt_keys.h"
#include "support/scripted_user.h"
#include "windows/databases/list_window.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QProxyStyle>
#include <QTreeView>

namespace wortlex {
namespace {

HopRecord hop(std::string_view name, float alpha, HopForm form = HopForm::whole) {
    HopRecord record;
    record.name.assign(name);
    record.alpha = alpha;
    set_form(record, form);
    return record;
}

// The window of a hop list of three, in the folder of its file.
struct ListDesk : ScriptedUser {
    Settings settings;
    ToolPositions positions;
    NoticeBoard notices;
    Database<HopRecord> database;
    std::unique_ptr<RecordList<HopRecord>> hops =
        hop_list({ListSide::maintenance, settings, folder.path()}, database);
    std::unique_ptr<ListWindow> window;
    explicit ListDesk(const std::function<bool()>& picked = nullptr, bool* stays_open = nullptr) {
        settings.save_window_positions = 1;
        database.count = 3;
        database.slots = {hop("Saaz", 3), hop("Fuggle", 5, HopForm::plug), hop("Galena", 13)};
        database.slots.resize(database_slots);
        EXPECT_TRUE(SaveHops(folder.path(), database));
        show(picked, stays_open);
    }
    ~ListDesk() { window->hide(); }
    void show(const std::function<bool()>& picked = nullptr, bool* stays_open = nullptr) {
        hops->open(prompts);
        const ListPorts ports{{positions, settings, notices}, files, prompts};
        window = std::make_unique<ListWindow>(*hops, ports, Opener::main, picked, nullptr, stays_open);
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    QLineEdit& find_line() const { return *window->findChild<QLineEdit*>("find"); }
    QTreeView& list() const { return *window->findChild<QTreeView*>(); }
    // The names as the rows show them, a star before the selected one.
    std::string rows() const {
        std::string names;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            names += (row == list().currentIndex().row() ? "*" : "") +
                     list().model()->index(row, 0).data().toString().toStdString() + ' ';
        return names;
    }
    void click(const char* key) const {
        QTest::mouseClick(window->findChild<QAbstractButton*>(QString::fromLatin1(key)), Qt::LeftButton);
    }
    void double_click(int row) const {
        const auto cell = list().visualRect(list().model()->index(row, 0));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, cell.center());
        QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, cell.center());
    }
    // Types into the dialog that is about to open, and leaves it by `key`.
    void answer_dialog(const char* field, const char* text, Qt::Key key) {
        in_next<FormDialog>([=, this](FormDialog& dialog) {
            type_into(dialog, field, text);
            QTest::keyClick(&dialog, key);
            window->activateWindow(); // there is no window manager to do it
        });
    }
};

TEST(ListWindow, EntersEditsAndDeletes) {
    ListDesk desk;
    desk.answer_dialog("name", "Admiral", Qt::Key_Return);
    desk.click("new");
    EXPECT_EQ(desk.rows(), "Fuggle Galena Saaz *Admiral ");
    desk.answer_dialog("name", "Nugget", Qt::Key_Return);
    desk.double_click(1);
    EXPECT_EQ(desk.rows(), "Fuggle *Nugget Saaz Admiral ");
    desk.prompts.expect_yes_no("Do you really want to delete the\n\nNugget\n\nentry?", Answer::yes);
    QTest::keyClick(&desk.list(), Qt::Key_Delete);
    EXPECT_EQ(desk.rows(), "*Fuggle Saaz Admiral ");
}

TEST(ListWindow, FiltersSortsAndFindsByTyping) {
    ListDesk desk;
    desk.click("filter_2");
    EXPECT_EQ(desk.rows(), "*Fuggle ");
    EXPECT_EQ(desk.window->windowTitle(), "Hop Database Maintenance - Plug Hops");
    desk.click("filter_0");
    const auto& head = *desk.list().header();
    QTest::mouseClick(head.viewport(), Qt::LeftButton, {}, {head.sectionViewportPosition(2) + 5, 5});
    EXPECT_EQ(desk.rows(), "*Saaz Fuggle Galena ");
    EXPECT_EQ(std::pair(head.sortIndicatorSection(), head.sortIndicatorOrder()),
              std::pair(2, Qt::AscendingOrder));
    QTest::keyClick(&desk.list(), Qt::Key_P); // only the form of one reads so
    QTest::keyClicks(&desk.find_line(), "lug");
    EXPECT_EQ(desk.hops->selected_record()->name.view(), "Fuggle");
}

// As the desktops that activate by a single click.
struct HastyStyle : QProxyStyle {
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override {
        return hint == SH_ItemView_ActivateItemOnSingleClick
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, more);
    }
};

TEST(ListWindow, FindsMarksAndPicksNothingThatIsNotFound) {
    int picks = 0;
    ListDesk desk([&picks] { return ++picks == 0; });
    HastyStyle hasty;
    desk.list().setStyle(&hasty);
    const auto is_marked = [&](int row) {
        return desk.list().model()->index(row, 0).data(Qt::BackgroundRole).isValid();
    };
    QTest::mouseClick(desk.list().viewport(), Qt::LeftButton, {},
                      desk.list().visualRect(desk.list().model()->index(0, 0)).center());
    auto& line = desk.find_line();
    line.setFocus();
    QTest::keyClicks(&line, "ga plug");
    QTest::keyClick(&line, Qt::Key_Return);
    desk.click("pick");
    EXPECT_EQ(desk.rows(), "Fuggle Galena Saaz ");
    EXPECT_EQ(picks, 0) << "neither by the click nor by a find line that found nothing";
    type_over(line, "A");
    EXPECT_EQ(desk.rows(), "Fuggle *Galena Saaz ");
    EXPECT_EQ((std::array{is_marked(0), is_marked(1), is_marked(2)}), (std::array{false, true, true}));
    QTest::keyClick(&line, Qt::Key_F3);
    EXPECT_EQ(desk.rows(), "Fuggle Galena *Saaz ");
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(picks, 1);
    QTest::keyClick(&line, Qt::Key_Down);
    EXPECT_EQ(desk.rows(), "Fuggle *Galena Saaz ") << "round the end to the next one found";
    EXPECT_TRUE(desk.list().hasFocus());
    QTest::keyClick(&line, Qt::Key_Escape);
    EXPECT_TRUE(line.text().isEmpty() && desk.window->isVisible());
    desk.list().setStyle(nullptr);
}

TEST(ListWindow, PicksByDoubleClickAndEnter) {
    for (const bool by_mouse : {true, false}) {
        ListDesk desk([] { return true; });
        EXPECT_FALSE(drop_file(*desk.window, desk.folder / "new.him")) << "a pick list imports nothing";
        by_mouse ? desk.double_click(2) : QTest::keyClick(&desk.list(), Qt::Key_Return);
        EXPECT_EQ(std::pair(desk.window->result(), desk.hops->selected), std::pair(1, by_mouse ? 2 : 0));
    }
}

TEST(ListWindow, StaysOpenForMoreThanOne) {
    bool stays_open = false;
    int picked = 0;
    ListDesk desk([&picked] { return ++picked > 0; }, &stays_open);
    QTest::keyClick(&desk.list(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_TRUE(desk.window->isVisible());
    desk.click("stays_open");
    QTest::keyClick(&desk.list(), Qt::Key_Return);
    EXPECT_TRUE(desk.window->isVisible());
    EXPECT_EQ(desk.window->findChild<QLabel*>("found")->text(), "2 added");
    desk.click("stays_open");
    QTest::keyClick(&desk.list(), Qt::Key_Return);
    EXPECT_FALSE(desk.window->isVisible());
    EXPECT_EQ(picked, 3);
}

TEST(ListWindow, EscAsksAboutChangesAndOnlyOkRemembersThePlace) {
    ListDesk desk;
    const auto change_and_leave = [&](Answer answer) {
        desk.answer_dialog("name", "Admiral", Qt::Key_Return);
        desk.click("new");
        desk.prompts.expect("yes/no or stay",
                            "The hop database has been modified!\nDo you want to save the changes?", answer,
                            Icon::warning);
        if (answer == Answer::yes) desk.prompts.expect_tell(std::string(not_saved), Icon::error);
        QTest::keyClick(desk.window.get(), Qt::Key_Escape);
    };
    change_and_leave(Answer::cancel);
    EXPECT_TRUE(desk.window->isVisible()) << "Esc at the question, too, loses nothing";
    change_and_leave(Answer::no);
    EXPECT_EQ(desk.positions.slots[40], Rectangle{});
    desk.show();
    desk.window->move(70, 60);
    desk.click("ok");
    EXPECT_EQ(desk.positions.slots[40].left, 70);
    desk.show();
    std::filesystem::remove_all(desk.folder.path());
    change_and_leave(Answer::yes);
    EXPECT_TRUE(desk.window->isVisible()) << "what cannot be saved is not thrown away";
}

TEST(ListWindow, ShowsAtOnceWhatIsBookedElsewhere) {
    ListDesk desk;
    auto stocked = desk.database;
    stocked.slots[0].stock = 4;
    SaveHops(desk.folder.path(), stocked);
    desk.notices.tell(Change::databases);
    EXPECT_EQ(desk.list().model()->index(0, 4).data().toString(), " 113.40") << "grams";
}

TEST(ListWindow, ImportsWhatIsDropped) {
    ListDesk desk;
    save_atomically(desk.folder / "new.HIM", encoded(hop("Ella", 15), hop_layout));
    EXPECT_FALSE(drop_file(*desk.window, desk.folder / "new.mim")) << "a file of another database";
    desk.prompts.expect_tell("Data Successfully Imported!", Icon::information);
    EXPECT_TRUE(drop_file(*desk.window, desk.folder / "new.HIM"));
    EXPECT_EQ(desk.rows(), "*Ella Fuggle Galena Saaz ");
}

} // namespace
} // namespace wortlex
