#include "windows/documents/recipe_panel.h"

#include "desktop/captions.h"
#include "desktop/list_keys.h"
#include "program/program.h"
#include "windows/documents/entry_lines.h"
#include "windows/documents/result_strip_view.h"

#include <QApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QShortcut>

namespace wortlex {
namespace {

constexpr auto longer_key = Qt::CTRL | Qt::Key_Plus;
constexpr auto shorter_key = Qt::CTRL | Qt::Key_Minus;

// A form filled before its widgets are made.
Form made_form(const RecipeSubject& subject) {
    Form form;
    recipe_form(form, subject);
    return form;
}

} // namespace

RecipePanel::RecipePanel(const RecipeSubject& subject, const WindowPorts& ports, QWidget* parent)
    : QWidget(parent), form_(made_form(subject)), widgets_(form_, places(ports.program), *this),
      malt_entry_(malt_entry(subject.editor, ports), ports, this),
      hop_entry_(hop_entry(subject.editor, ports), ports, this),
      yeast_entry_(yeast_entry(subject.editor, ports), ports, this) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const top = new QHBoxLayout;
    auto* const left = new QVBoxLayout;
    left->addLayout(name_part());
    left->addLayout(size_part());
    left->addLayout(figure_part());
    left->addStretch();
    top->addLayout(left, 3);
    top->addWidget(style_part(), 2);
    layout->addLayout(top);
    layout->addWidget(new ResultStripView(subject, ports.program.notices, this));
    layout->addLayout(
        list_part({"malts",
                   "show_potential",
                   "total_grain",
                   &malt_entry_,
                   {"malt_new", "malt_del", "malt_edit", "malt_detail", "malt_more", "malt_less"}}),
        1);
    layout->addLayout(list_part({"hops",
                                 "show_ibu",
                                 "total_hops",
                                 &hop_entry_,
                                 {"hop_new", "hop_del", "hop_edit", "hop_loss", "hop_more", "hop_less",
                                  "boil_more", "boil_less"}}),
                      1);
    layout->addLayout(summary_part());
    add_list_keys("malts", "malt_");
    add_list_keys("hops", "hop_");
    press_by_key(widgets_.field("hops"), longer_key, widgets_.field("boil_more"));
    press_by_key(widgets_.field("hops"), shorter_key, widgets_.field("boil_less"));
    add_focus_keys();
    follow_focus();
}

void RecipePanel::add_list_keys(std::string_view list, const std::string& buttons) {
    for (const auto& [key, button] :
         {std::pair(QKeySequence(Qt::Key_Insert), "new"),
          std::pair(QKeySequence(QKeySequence::Delete), "del"), std::pair(QKeySequence(Qt::Key_Plus), "more"),
          std::pair(QKeySequence(Qt::Key_Minus), "less")})
        press_by_key(widgets_.field(list), key, widgets_.field(buttons + button));
    add_key(*qobject_cast<QPushButton*>(&widgets_.field(buttons + "edit")), Qt::Key_Return);
}

// To the lists, and to the lines that add to the recipe.
void RecipePanel::add_focus_keys() {
    for (const auto& [key, field] : {std::pair(Qt::ALT | Qt::Key_1, &widgets_.field("malts")),
                                     std::pair(Qt::ALT | Qt::Key_2, &widgets_.field("hops")),
                                     std::pair(Qt::CTRL | Qt::Key_1, static_cast<QWidget*>(&malt_entry_)),
                                     std::pair(Qt::CTRL | Qt::Key_2, static_cast<QWidget*>(&hop_entry_)),
                                     std::pair(Qt::CTRL | Qt::Key_3, static_cast<QWidget*>(&yeast_entry_))}) {
        connect(new QShortcut(key, this), &QShortcut::activated, field,
                [to = field] { to->setFocus(Qt::ShortcutFocusReason); });
    }
}

void RecipePanel::follow_focus() {
    connect(qApp, &QApplication::focusChanged, &alive_, [this](const QWidget*, const QWidget* now) {
        if (now == &widgets_.field("hops") || now == &hop_entry_) hops_in_use_ = true;
        if (now == &widgets_.field("malts") || now == &malt_entry_) hops_in_use_ = false;
    });
}

// The keys are those of the lists, which the menu only tells.
void RecipePanel::add_line_actions(QMenu& menu) {
    struct LineAction {
        const char* words;
        QKeySequence key;
        const char* of_malts; ///< the button; null for none
        const char* of_hops;
    };
    const std::initializer_list<LineAction> actions = {
        {"&New %1", Qt::Key_Insert, "malt_new", "hop_new"},
        {"&Edit %1", Qt::Key_Return, "malt_edit", "hop_edit"},
        {"&Delete %1", QKeySequence::Delete, "malt_del", "hop_del"},
        {"&More of the %1", Qt::Key_Plus, "malt_more", "hop_more"},
        {"&Less of the %1", Qt::Key_Minus, "malt_less", "hop_less"},
        {"Boil L&onger", longer_key, nullptr, "boil_more"},
        {"Boil &Shorter", shorter_key, nullptr, "boil_less"}};
    menu.addSeparator();
    for (const auto& each : actions) {
        auto* const action = menu.addAction(QString());
        const auto button = [this, each]() -> QPushButton* {
            const auto* const key = hops_in_use_ ? each.of_hops : each.of_malts;
            return key == nullptr ? nullptr : qobject_cast<QPushButton*>(&widgets_.field(key));
        };
        connect(action, &QAction::triggered, &alive_, [button] { button()->click(); });
        const auto show = [this, action, button, each] {
            const auto words =
                QString::fromLatin1(each.words)
                    .replace(QLatin1String("%1"), QLatin1String(hops_in_use_ ? "Hop" : "Malt"));
            action->setText(words + QLatin1Char('\t') + each.key.toString(QKeySequence::NativeText));
            const auto* const pressed = button();
            action->setEnabled(pressed != nullptr && pressed->isEnabled());
            action->setToolTip(pressed == nullptr ? QString() : pressed->toolTip());
        };
        connect(&menu, &QMenu::aboutToShow, &alive_, show);
        show();
    }
}

QLayout* RecipePanel::name_part() {
    auto* const grid = new QGridLayout;
    add_field(*grid, widgets_, "title", 0, 0);
    grid->addWidget(&widgets_.field("recipe_kind"), 1, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

QLayout* RecipePanel::size_part() {
    auto* const grid = new QGridLayout;
    add_field(*grid, widgets_, "batch_size", 0, 0);
    add_field(*grid, widgets_, "boil_minutes", 0, 2);
    grid->addWidget(&widgets_.field("pre_boil"), 0, 4);
    add_field(*grid, widgets_, "wort_size", 1, 0);
    add_field(*grid, widgets_, "efficiency", 1, 2);
    grid->addWidget(&widgets_.field("efficiency_lock"), 1, 4);
    grid->addWidget(&widgets_.field("lock_to_batch"), 2, 0, 1, 5);
    grid->setColumnStretch(5, 1);
    return grid;
}

QWidget* RecipePanel::style_part() {
    auto* const box = new QGroupBox(tr("Style"), this);
    auto* const grid = new QGridLayout(box);
    add_field(*grid, widgets_, "style_class", 0, 0, 4);
    add_field(*grid, widgets_, "style_name", 1, 0, 4);
    add_field(*grid, widgets_, "style_type", 2, 0);
    add_field(*grid, widgets_, "style_book", 2, 2);
    grid->addWidget(&widgets_.field("pick_style"), 2, 4);
    int row = 3;
    for (const auto& [low, high] : {std::pair("min_sg", "max_sg"), std::pair("min_ibu", "max_ibu"),
                                    std::pair("min_colour", "max_colour")}) {
        add_field(*grid, widgets_, low, row, 0);
        add_field(*grid, widgets_, high, row++, 2);
    }
    grid->setColumnStretch(4, 1);
    return box;
}

QLayout* RecipePanel::figure_part() {
    auto* const grid = new QGridLayout;
    add_field(*grid, widgets_, "sg", 0, 0);
    add_field(*grid, widgets_, "plato", 0, 2);
    add_field(*grid, widgets_, "swatch", 0, 4);
    add_field(*grid, widgets_, "total_ibu", 1, 0);
    add_field(*grid, widgets_, "colour", 1, 2);
    grid->addWidget(widgets_.unit("colour"), 1, 4);
    grid->setColumnStretch(6, 1);
    return grid;
}

QLayout* RecipePanel::list_part(const ListPart& part) {
    auto* const line = new QHBoxLayout;
    auto* const left = new QVBoxLayout;
    auto& list = widgets_.field(part.list);
    list.setMinimumHeight(fontMetrics().height() * 7);
    left->addWidget(&list, 1);
    auto* const below = new QHBoxLayout;
    below->addWidget(part.entry, 1);
    below->addWidget(&widgets_.field(part.choice));
    below->addWidget(widgets_.label(part.total));
    below->addWidget(&widgets_.field(part.total));
    left->addLayout(below);
    line->addLayout(left, 1);
    auto* const column = new QGridLayout;
    int place = 0;
    for (const auto key : part.buttons) {
        column->addWidget(&widgets_.field(key), place / 2, place % 2);
        ++place;
    }
    column->setRowStretch(place, 1);
    line->addLayout(column);
    setTabOrder(&list, part.entry);
    return line;
}

// The yeast can be chosen here; all else is changed on the pages.
QLayout* RecipePanel::summary_part() {
    auto* const grid = new QGridLayout;
    grid->addWidget(&widgets_.field("yeast_and_water"), 0, 0);
    grid->addWidget(&yeast_entry_, 0, 1);
    add_field(*grid, widgets_, "yeast_line", 0, 2);
    add_field(*grid, widgets_, "water_line", 0, 4);
    grid->addWidget(&widgets_.field("extras_and_notes"), 1, 0);
    add_field(*grid, widgets_, "extras_line", 1, 2);
    add_field(*grid, widgets_, "notes_line", 1, 4);
    grid->setColumnStretch(3, 3);
    grid->setColumnStretch(5, 2);
    setTabOrder(&widgets_.field("yeast_and_water"), &yeast_entry_);
    return grid;
}

} // namespace wortlex
