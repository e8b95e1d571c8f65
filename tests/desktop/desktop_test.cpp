#include "desktop/form_dialog.h"
#include "desktop/message_boxes.h"
#include "desktop/picture_easel.h"
#include "desktop/second_start.h"
#include "support/qt_keys.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <thread>

namespace wortlex {
namespace {

// What a form and its windows stand on.
struct Desk {
    SystemSettings settings = WriteDefaultSettings();
    ToolPositions positions;
    NoticeBoard notices;
    Places places{positions, settings, notices};
};

TEST(Placement, KeepsWindowsOnTheScreensThatThereAre) {
    const std::vector<Rectangle> screens = {{0, 0, 1000, 800}, {1000, 100, 1800, 700}};
    // clang-format off
    for (const auto& [wanted, place] : {
             std::pair<Rectangle, Rectangle>{{10, 20, 210, 120}, {10, 20, 210, 120}},
             {{900, 20, 1100, 120}, {900, 20, 1100, 120}}, // half on each: the first that covers as much...
             {{-50, -70, 150, 30}, {0, 0, 200, 100}}, {{950, 750, 1150, 850}, {800, 700, 1000, 800}},
             {{1100, 650, 1300, 750}, {1100, 600, 1300, 700}}, // within the second
             {{5000, 5000, 5200, 5100}, {800, 700, 1000, 800}}, // on none
             {{0, 0, 4000, 3000}, {0, 0, 1000, 800}}, // larger than the screen
             {{500, 500, 400, 400}, {500, 500, 501, 501}}, // inside out
             {rectangle_at(2147483647, 2147483600, 200, 100), {800, 700, 1000, 800}}, // at the end of numbers
             {{-2147483647, -2147483647, 2147483647, 2147483647}, {0, 0, 1000, 800}}}) {
        // clang-format on
        const auto result = within_screens(wanted, screens);
        if (wanted.left == 900) {
            EXPECT_TRUE(result.left == 800 || result.left == 1000) << "wholly on one of the two";
            continue;
        }
        EXPECT_EQ(result, place) << wanted.left << ", " << wanted.top;
    }
    EXPECT_EQ(within_screens({7, 8, 9, 10}, {}), (Rectangle{7, 8, 9, 10}));
    EXPECT_EQ(centred_over({100, 100, 300, 200}, 100, 50), (Rectangle{150, 125, 250, 175}));
}

TEST(FormDialog, TypesAndSpinsWithRealKeysWhateverTheLocale) {
    Desk desk;
    float gravity = 1.5F, amount = 3.5F;
    Form form;
    form.group("Fermenter");
    form.rows().number("gravity", gravity).label("&Gravity").range(1, 2).step(0.25F).format("%0.2f");
    form.rows().number("amount", amount).label("&Amount").range(0, 100);
    form.rows()
        .shown_number(
            "sum", [&] { return gravity + amount; }, "%0.2f")
        .label("Sum");
    FormDialog dialog(form, {"ABOUTDIALOG"}, desk.places, nullptr);
    dialog.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    const auto line = [&](const char* key) { return line_of(dialog.widgets().field(key)); };
    EXPECT_EQ(line("gravity")->text(), "1.50");
    type_over(*line("gravity"), "1.75");
    EXPECT_EQ(gravity, 1.75F);
    EXPECT_EQ(line("sum")->text(), "5.25") << "linked fields follow the typing";
    QTest::keyClick(line("gravity"), Qt::Key_Up);
    EXPECT_EQ(std::pair(gravity, line("gravity")->text()), std::pair(2.0F, QStringLiteral("2.00")));
    QTest::keyClick(line("gravity"), Qt::Key_Up);
    EXPECT_EQ(gravity, 2.0F) << "at the end of the range an arrow does nothing";
    type_over(*line("amount"), "4,5x");
    EXPECT_EQ(line("amount")->text(), "4.5") << "a comma is a point, and a letter none";
    type_over(*line("amount"), "x");
    EXPECT_EQ(line("amount")->text(), "4.50");
    type_over(*line("amount"), "700");
    EXPECT_EQ(line("amount")->text(), "700") << "out of range, it stands while it is typed";
    QTest::keyClick(line("amount"), Qt::Key_Tab);
    EXPECT_EQ(std::pair(amount, line("amount")->text()), std::pair(70.0F, QStringLiteral("70.00")));
}

TEST(FormDialog, ACalculatorSelectsOnEntryAndShowsItsRangeWhileItIsLeft) {
    Desk desk;
    float size = 5, other = 1;
    Form form;
    form.rows().number("size", size).label("&Size").range(1, 100).step(0.5F).outside(Outside::clamp);
    form.rows().number("other", other).label("&Other").range(1, 100).step(0.5F);
    form.rows()
        .shown_number(
            "sum", [&] { return size + other; }, "%0.2f")
        .label("Sum");
    form.rows().button("press", "&Press && Go", [] {});
    FormDialog dialog(form, {.template_name = "HOPSHORTTIMEDIALOG", .enter_closes = false}, desk.places,
                      nullptr);
    dialog.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    const auto& widgets = dialog.widgets();
    auto& line = *line_of(widgets.field("size"));
    QTest::mouseClick(line_of(widgets.field("other")), Qt::LeftButton);
    QTest::mouseClick(&line, Qt::LeftButton);
    QCoreApplication::processEvents();
    QTest::keyClicks(&widgets.field("size"), QStringLiteral("150"));
    const auto* const hint = dialog.findChild<QWidget*>("range_hint");
    ASSERT_NE(hint, nullptr);
    EXPECT_TRUE(hint->isVisible());
    EXPECT_EQ(std::pair(size, hint->accessibleName()), std::pair(100.0F, QStringLiteral("1 to 100")));
    desk.notices.tell(Change::document);
    EXPECT_TRUE(line.text() == "100.00" && !hint->isVisible()) << "shown again, so nothing is left to say";
    type_over(line, "150");
    EXPECT_TRUE(hint->isVisible());
    QTest::keyClick(&widgets.field("size"), Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible()) << "worked out, and not closed";
    EXPECT_TRUE(hint->isVisible()) << "tells a moment longer why another number stands there";
    EXPECT_EQ(line.selectedText(), "100.00");
    line.setCursorPosition(0);
    QTest::keyClick(&dialog, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(line.selectedText(), "100.00") << "by the mnemonic of the field that has the focus";
    EXPECT_EQ(widgets.field("size").toolTip(), "1 to 100");
    EXPECT_EQ(widgets.field("press").toolTip(), "Press and Go (Alt+P)");
    QTest::keyClick(&widgets.field("other"), Qt::Key_Tab);
    EXPECT_FALSE(widgets.field("sum").hasFocus()) << "figures are passed by";
    QTest::mouseClick(&widgets.field("sum"), Qt::LeftButton);
    EXPECT_TRUE(widgets.field("sum").hasFocus()) << "but can be copied";
}

TEST(FormDialog, PrintBearsItsPictureWhereTheSettingsAskForIt) {
    Desk desk;
    Form form;
    form.rows().button("print", "&Print", [] {});
    FormDialog dialog(form, {"ABOUTDIALOG"}, desk.places, nullptr);
    const auto* const button = dialog.findChild<QPushButton*>("print");
    for (const auto* const caption : {"", "&Print"}) {
        EXPECT_EQ(button->text(), caption);
        EXPECT_EQ(button->accessibleName() + ": " + button->toolTip(), "Print: Print (Alt+P, Ctrl+P)");
        EXPECT_NE(button->icon().isNull(), button->text().isEmpty());
        EXPECT_EQ(button->shortcut(), QKeySequence(QStringLiteral("Alt+P")));
        desk.settings.hide_print_help_bitmaps = 1;
        dialog.widgets().refresh();
    }
}

TEST(FormDialog, ShowsEveryKindOfRowAndItsState) {
    Desk desk;
    Text<12> name("Helles");
    bool dry = false;
    std::int32_t code = 1, selected = 1, pressed = 0;
    Form form;
    form.rows().text("name", name).label("Name").enabled([&] { return !dry; }).text_when_disabled = "N/A";
    form.rows().check("dry", dry).label("&Dry");
    form.rows().choice("kind", code, {"Ale", "Lager"}).label("Kind").visible([&] { return !dry; });
    form.rows()
        .list(
            "list", {{.caption = "Name"}, {.caption = "%", .is_number = true}}, [] { return 3; },
            [](std::size_t row, std::size_t column) { return std::to_string(row * 10 + column); })
        .selection(selected);
    form.rows().button("press", "Press", [&] { ++pressed; });
    form.rows().button("later", "Later", nullptr);
    FormDialog dialog(form, {"ABOUTDIALOG"}, desk.places, nullptr);
    dialog.show();
    const auto& widgets = dialog.widgets();
    auto& check = widgets.field("dry");
    QTest::mouseClick(&check, Qt::LeftButton, {}, QPoint(5, check.height() / 2));
    EXPECT_TRUE(dry);
    EXPECT_EQ(line_of(widgets.field("name"))->text(), "N/A");
    EXPECT_FALSE(widgets.field("name").isEnabled());
    EXPECT_FALSE(widgets.field("kind").isVisible() || widgets.label("kind")->isVisible());
    QTest::keyClick(&check, Qt::Key_Space);
    EXPECT_EQ(line_of(widgets.field("name"))->text(), "Helles");
    QTest::mouseClick(dialog.findChild<QRadioButton*>("kind_0"), Qt::LeftButton);
    EXPECT_EQ(code, 0);
    QTest::keyClick(&widgets.field("list"), Qt::Key_Down);
    EXPECT_EQ(selected, 2);
    QTest::mouseClick(&widgets.field("press"), Qt::LeftButton);
    EXPECT_EQ(pressed, 1);
    EXPECT_FALSE(widgets.field("later").isEnabled()) << "its window does not exist yet";
    EXPECT_EQ(widgets.field("name").accessibleName(), "Name");
}

TEST(FormDialog, OkCommitsAndEscRestores) {
    Desk desk;
    struct Record {
        float value = 1;
        bool operator==(const Record&) const = default;
    } record;
    for (const bool ok : {true, false}) {
        Form form;
        form.rows().number("value", record.value).range(0, 9);
        form.restore_on_cancel(record);
        FormDialog dialog(form, {"ABOUTDIALOG"}, desk.places, nullptr);
        dialog.show();
        type_over(*line_of(dialog.widgets().field("value")), ok ? "5" : "7");
        if (ok)
            QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok),
                              Qt::LeftButton);
        else
            QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(record.value, 5);
    }
}

TEST(FormWidgets, FollowWhatIsToldButForTheFieldTypedIn) {
    Desk desk;
    float amount = 3;
    Form typed, shown;
    for (auto* const form : {&typed, &shown}) {
        form->rows().number("amount", amount).range(0, 9).format("%0.2f");
        form->after_edit([&](Row&) { desk.notices.tell(Change::document); });
    }
    QWidget first, second;
    const FormWidgets typed_widgets(typed, desk.places, first);
    { const FormWidgets gone(shown, desk.places, second); }
    const FormWidgets shown_widgets(shown, desk.places, second);
    auto& field = dynamic_cast<QLineEdit&>(typed_widgets.field("amount"));
    field.clear();
    QTest::keyClicks(&field, "4.5");
    EXPECT_EQ(field.text(), "4.5");
    EXPECT_EQ(dynamic_cast<QLineEdit&>(shown_widgets.field("amount")).text(), "4.50");
}

// What a box answers to one key.
template <class Ask>
Answer answer_to(Qt::Key key, Ask ask) {
    QTimer once_open;
    QObject::connect(&once_open, &QTimer::timeout, [key] {
        if (auto* const box = QApplication::activeModalWidget()) QTest::keyClick(box, key);
    });
    once_open.start(20);
    MessageBoxes boxes;
    return ask(boxes);
}

TEST(FormWidgets, FollowTheColoursOfTheDesktop) {
    Desk desk;
    set_colours(desk.settings, colours_of(ColourPreset::desktop));
    float amount = 1;
    Form form;
    form.rows().number("amount", amount);
    QWidget window;
    const FormWidgets widgets(form, desk.places, window);
    window.show();
    const auto usual = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 50, 60)));
    const auto ground = QApplication::palette().color(QPalette::Base);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return widgets.field("amount").palette().color(QPalette::Base) == ground; }));
    QApplication::setPalette(usual);
}

TEST(MessageBoxes, EnterIsSafeAndEscStaysOrIsSafe) {
    for (const auto safe : {Answer::yes, Answer::no}) {
        const Message question{.text = "Save the changes?", .icon = Icon::warning, .safe = safe};
        const auto or_stay = [&](Prompts& prompts) { return prompts.ask_yes_no_or_stay(question); };
        const auto or_not = [&](Prompts& prompts) { return prompts.ask_yes_no(question); };
        EXPECT_EQ(answer_to(Qt::Key_Return, or_stay), safe);
        EXPECT_EQ(answer_to(Qt::Key_Return, or_not), safe);
        EXPECT_EQ(answer_to(Qt::Key_Escape, or_stay), Answer::cancel);
        EXPECT_EQ(answer_to(Qt::Key_Escape, or_not), safe);
    }
}

TEST(PictureEasel, DrawsOnWhiteAndKeepsNoByteBetweenRows) {
    PictureEasel easel;
    const auto pixels = easel.drawn({3, 2}, [](Surface& surface) {
        surface.set_pen({0x563412});
        surface.move_to({2, 1});
        surface.line_to({2, 1});
    });
    EXPECT_EQ(pixels.rgb, (std::vector<std::uint8_t>{255, 255, 255, 255, 255, 255, 255, 255, 255, //
                                                     255, 255, 255, 255, 255, 255, 0x12, 0x34, 0x56}));
}

TEST(SecondStarts, HandTheBytesOfANameToTheFirst) {
    const TemporaryFolder folder;
    const std::string name = "/Br\xE4u/two\nlines.rec";
    std::string received;
    std::thread second([&] { EXPECT_TRUE(hand_over(folder.path(), name)); });
    QTest::qWait(60); // the first is not much earlier
    const SecondStarts first(folder.path(), [&](const std::string& path) { received = path; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return received == name; }));
    second.join();
}

TEST(FormWidgets, MayEndInAnEdit) {
    const Desk desk;
    float amount = 3;
    Form form;
    form.rows().number("amount", amount).range(0, 5).outside(Outside::clamp);
    QWidget window;
    auto widgets = std::make_unique<FormWidgets>(form, desk.places, window);
    form.after_edit([&](Row&) {
        form.show_again = nullptr;
        widgets.reset();
    });
    auto& field = dynamic_cast<QLineEdit&>(widgets->field("amount"));
    field.clear();
    QTest::keyClicks(&field, "9");
    EXPECT_EQ(widgets, nullptr);
    EXPECT_EQ(window.findChild<QWidget*>("range_hint"), nullptr) << "nobody is left to say anything";
}

TEST(ToolWindow, StaysWhileItsModalDialogIsOpen) {
    Desk desk;
    int closings = 0;
    auto* const window =
        new ToolWindow(window_info("ABOUTDIALOG"), 0, Opener::main, nullptr, desk.places); // deletes itself
    window->closed = [&] { ++closings; };
    window->show();
    {
        Form form;
        FormDialog dialog(form, {"ABOUTDIALOG"}, desk.places, window);
        dialog.show();
        EXPECT_FALSE(window->close());
        EXPECT_TRUE(window->isVisible() && dialog.isVisible());
        dialog.reject();
    }
    EXPECT_TRUE(window->close());
    EXPECT_EQ(closings, 1);
}

TEST(WindowPlace, IsRememberedInItsSlot) {
    Desk desk;
    desk.settings.save_window_positions = 1;
    for (const int x : {60, 0}) {
        QWidget window;
        WindowPlace place(window, nullptr, 7, desk.places);
        window.resize(200, 100);
        place.put();
        if (x == 0) {
            EXPECT_EQ(window.geometry(), QRect(60, 50, 200, 100)) << "as the first one left it";
        }
        window.move(x, 40);
        window.show();
        window.move(x, 50);
        EXPECT_EQ(desk.positions.slots[7].top, 50) << "known before it goes";
        window.hide();
    }
    EXPECT_EQ(desk.positions.slots[7], (Rectangle{1, 50, 201, 150})) << "a left of zero would be no place";
    desk.settings.save_window_positions = 0;
    QWidget window, origin;
    origin.setGeometry(100, 100, 400, 300);
    window.resize(200, 100);
    WindowPlace(window, &origin, 7, desk.places).put();
    EXPECT_EQ(window.pos(), QPoint(200, 200)) << "not to be used: centred";
}

} // namespace
} // namespace wortlex
