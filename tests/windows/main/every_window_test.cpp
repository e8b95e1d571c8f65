#include "base/ports/quiet_prompts.h"
#include "desktop/drawings.h"
#include "desktop/qt_text.h"
#include "support/started_brewery.h"
#include "windows/main/picture_board.h"
#include "windows/main/tools.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QButtonGroup>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QTreeView>

namespace wortlex {
namespace {

// Wants nothing kept, so that no question holds a window open.
struct Careless : QuietPrompts {
    Answer ask_yes_no_cancel(const Message&) override { return Answer::no; }
};

struct NoFiles : Files {
    std::optional<std::string> choose_to_open(const FileChoice&) override { return std::nullopt; }
    std::optional<std::string> choose_to_save(const FileChoice&) override { return std::nullopt; }
};

QString name_of(QWidget& widget) {
    // The toolkit gives what is chosen for the name of a box, and the label beside it.
    if (qobject_cast<QComboBox*>(&widget) != nullptr) return widget.accessibleName();
    auto* const seen = QAccessible::queryAccessibleInterface(&widget);
    return seen == nullptr ? widget.accessibleName() : seen->text(QAccessible::Name);
}

bool is_part_of_another(const QWidget& widget) {
    const auto* const whole = widget.parentWidget();
    const auto key = widget.objectName();
    return qobject_cast<const QAbstractSpinBox*>(whole) != nullptr ||
           qobject_cast<const QLineEdit*>(whole) != nullptr ||
           qobject_cast<const QComboBox*>(whole) != nullptr || key == "qt_calendar_monthbutton" ||
           key == "qt_calendar_yearbutton" || // the same of each month
           qobject_cast<const QHeaderView*>(&widget) != nullptr;
}

bool is_control(const QWidget& widget) {
    const bool is_choice = widget.findChild<QButtonGroup*>(QString(), Qt::FindDirectChildrenOnly) != nullptr;
    return is_choice || qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
           qobject_cast<const QTextEdit*>(&widget) != nullptr ||
           qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
           dynamic_cast<const Canvas*>(&widget) != nullptr;
}

bool is_seen_in(const QWidget& widget, const QWidget& window) {
    return widget.window() == &window && widget.isVisibleTo(&window);
}

// Alt and a letter, of all menus, labels and buttons.
QStringList mnemonics_of(const QWidget& window) {
    QStringList keys;
    for (const auto* const bar : window.findChildren<QMenuBar*>())
        for (const auto* const menu : bar->actions()) keys << QKeySequence::mnemonic(menu->text()).toString();
    for (const auto* const label : window.findChildren<QLabel*>())
        if (label->buddy() != nullptr && is_seen_in(*label, window))
            keys << QKeySequence::mnemonic(label->text()).toString();
    for (const auto* const button : window.findChildren<QAbstractButton*>())
        if (is_seen_in(*button, window)) keys << button->shortcut().toString();
    keys.removeAll(QString());
    return keys;
}

// Where Tab stops on its way round a window.
std::set<const QWidget*> stops_of_tab(QWidget& window) {
    const auto press_tab = [&window]() -> const QWidget* {
        QTest::keyClick(window.focusWidget() == nullptr ? &window : window.focusWidget(), Qt::Key_Tab);
        return window.focusWidget();
    };
    constexpr int most = 300;
    const auto* const first = press_tab();
    std::set<const QWidget*> stops = {first};
    const auto* stop = press_tab();
    // The links of a page are stops, too, before Tab leaves it.
    for (int i = 0; i < most && (stop != first || stops.size() == 1); ++i, stop = press_tab())
        stops.insert(stop);
    return stops;
}

// Pictures do what is in the menu, and Page Up turns a calendar back.
bool is_done_by_other_keys(const QWidget& widget) {
    return dynamic_cast<const PictureButton*>(&widget) != nullptr ||
           widget.objectName() == "qt_calendar_prevmonth" || widget.objectName() == "qt_calendar_nextmonth";
}

// Arrows go from the chosen one of several to the others.
bool is_stopped_at(const QWidget& control, const std::set<const QWidget*>& stops) {
    const auto* const button = qobject_cast<const QAbstractButton*>(&control);
    const auto choice = button == nullptr || button->group() == nullptr ? QList<QAbstractButton*>()
                                                                        : button->group()->buttons();
    const auto* const stop = control.focusProxy() == nullptr ? &control : control.focusProxy();
    return stops.count(stop) != 0 || std::any_of(choice.begin(), choice.end(), [&stops](const auto* other) {
               return stops.count(other) != 0;
           });
}

// What somebody meets who reads a window by ear or goes about it by keys, what the pointer tells about its
// buttons, and that a key means one thing.
void read(QWidget& window) {
    EXPECT_NE(QAccessible::queryAccessibleInterface(&window)->role(), QAccessible::Client)
        << window.objectName().toStdString() << " is no window to a reader";
    QAccessible::setActive(true); // with whom Tab comes to figures and drawings, too
    const auto stops = stops_of_tab(window);
    QAccessible::setActive(false);
    for (const auto keys = mnemonics_of(window); const auto& key : keys)
        EXPECT_EQ(keys.count(key), 1) << window.objectName().toStdString() << ": " << key.toStdString();
    constexpr int narrow_screen = 1024;
    EXPECT_LE(window.minimumSizeHint().width(), narrow_screen) << window.objectName().toStdString();
    std::map<QString, QString> names;
    for (auto* const widget : window.findChildren<QWidget*>()) {
        if (!is_seen_in(*widget, window) || !is_control(*widget) || is_part_of_another(*widget)) continue;
        const auto where = (window.objectName() + ": " + widget->objectName()).toStdString();
        const auto name = name_of(*widget);
        EXPECT_TRUE(!widget->isEnabled() || is_done_by_other_keys(*widget) || is_stopped_at(*widget, stops))
            << where << " is not reached by Tab";
        EXPECT_FALSE(name.isEmpty()) << where << " has no name";
        EXPECT_FALSE(name.contains('&')) << where << ' ' << name.toStdString();
        const bool is_new = name.isEmpty() || names.try_emplace(name, widget->objectName()).second;
        EXPECT_TRUE(is_new) << where << " and " << names[name].toStdString() << " are both "
                            << name.toStdString();
        if (qobject_cast<QPushButton*>(widget) == nullptr) continue;
        EXPECT_FALSE(widget->toolTip().isEmpty()) << where << " has no tooltip";
        EXPECT_TRUE(widget->isEnabled() || widget->toolTip().contains('\n')) << where << " tells no reason";
    }
}

// Ctrl+P means one button alone.
void press_print(QWidget& window, const QAbstractButton& button) {
    int pressed = 0;
    const QObject listening;
    QObject::connect(&button, &QAbstractButton::clicked, &listening, [&pressed] { ++pressed; });
    window.activateWindow(); // there is no window manager to do it
    const auto name = window.objectName().toStdString();
    EXPECT_TRUE(QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; })) << name;
    QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(pressed, 1) << name;
}

// Presses whatever opens something, and what opens is read and treated alike.
class Visitor {
public:
    void press(const std::function<void()>& action) {
        QTimer look;
        look.setInterval(0);
        QObject::connect(&look, &QTimer::timeout, [this] { visit_new(); });
        look.start();
        action();
        for (int round = 0; round < 3; ++round) QApplication::processEvents();
    }

    std::set<QString> seen;

private:
    void visit_new() {
        for (const QPointer<QWidget> window : QApplication::topLevelWidgets()) {
            if (window.isNull() || !window->isVisible() || !window->isWindow()) continue;
            const bool is_page = window->windowType() == Qt::Window || window->windowType() == Qt::Dialog;
            auto* const place = window.data(); // which another window may have after its end
            if (!is_page || !open_.insert(place).second) continue;
            visit(*window);
            open_.erase(place);
            if (!window.isNull() && window->isVisible()) window->close();
        }
    }

    void visit(QWidget& window) {
        const auto* const opener = window.parentWidget();
        const auto from = opener == nullptr ? QString() : opener->objectName() + ' ';
        if (!seen.insert(from + window.objectName()).second) return;
        read(window);
        for (auto* const list : window.findChildren<QTreeView*>())
            list->setCurrentIndex(list->model()->index(0, 0));
        QList<QPointer<QAbstractButton>> last, buttons;
        for (auto* const button : window.findChildren<QAbstractButton*>())
            (button->objectName() == "pick" ? last : buttons).append(button);
        for (const auto& button : buttons + last)
            if (!button.isNull() && opens_something(*button))
                press([&] {
                    button->objectName() == "print" ? press_print(window, *button) : button->click();
                });
    }

    static bool opens_something(const QAbstractButton& button) {
        const bool is_pressed = qobject_cast<const QPushButton*>(&button) != nullptr ||
                                dynamic_cast<const SwatchButton*>(&button) != nullptr;
        const bool stands_beside_ok = qobject_cast<QDialogButtonBox*>(button.parentWidget()) != nullptr;
        const bool may_close =
            button.objectName() != "print" &&
            (stands_beside_ok || button.objectName() == "ok" || button.objectName() == "cancel");
        return is_pressed && button.isEnabled() && button.isVisible() && !may_close;
    }

    std::set<QWidget*> open_;
};

template <class Record>
Database<Record> one(const char* name) {
    Database<Record> database;
    database.count = 1;
    database.slots.resize(database_slots);
    database.slots[0].name.assign(name);
    return database;
}

void fill_databases(const std::string& folder) {
    SaveHops(folder, one<HopRecord>("Saaz"));
    SaveMalts(folder, one<MaltRecord>("Maris Otter"));
    SaveYeasts(folder, one<YeastRecord>("Ale"));
    SaveExtras(folder, one<ExtraRecord>("Moss"));
    SaveStyles(folder, true, one<StyleRecord>("Mild"));
}

// A line of each kind, so that all their buttons open something.
std::string save_full(Brewery& brewery, DocumentKind kind) {
    auto document = new_document(brewery.program.settings, ScheduleKind::simple);
    document.malts.resize(1);
    document.malts[0].record.malt_type = MaltType::grain;
    document.malts[0].amount = 10;
    document.hops.resize(1);
    document.extras.resize(1);
    DocumentImage image{.recipe = std::move(document)};
    if (kind == DocumentKind::session) image.session = new_session(image.recipe);
    auto path = brewery.folder.path() + "Mild." + std::string(document_traits(kind).extension);
    QuietPrompts quiet;
    EXPECT_TRUE(save_document(path, image, quiet));
    return path;
}

TEST(EveryWindow, IsReadByEarAndTellsWhatItsButtonsDo) {
    Brewery brewery;
    fill_databases(brewery.folder.path());
    Careless prompts;
    NoFiles files;
    auto& program = brewery.program;
    program.water_database = one<WaterRecord>("Burton");
    MainWindow window(
        {program, prompts, files, brewery.pages, brewery.clipboard, brewery.easel, brewery.pictures});
    window.show();
    Visitor visitor;
    visitor.press([&] { read(window); });
    visitor.seen.clear();
    for (const auto& tool : tools()) {
        if (tool.command == command::exit || !window.commands().is_built(tool.command)) continue;
        visitor.press([&] { window.commands().start(tool.command); });
        if (tool.make != nullptr && tool.prepare == nullptr) {
            EXPECT_TRUE(visitor.seen.count(string_of(tool.window.template_name)))
                << tool.window.template_name;
        }
    }
    for (const auto& [kind, name] : {std::pair(DocumentKind::recipe, "RECIPEDIALOG"),
                                     std::pair(DocumentKind::session, "BATCH1DIALOG")}) {
        visitor.seen.erase(name); // a new document had no lines
        const auto path = save_full(brewery, kind);
        visitor.press([&] { window.open_file(path); });
    }
    EXPECT_GT(visitor.seen.size(), 50U) << "not all that can be opened has been";
}

} // namespace
} // namespace wortlex
