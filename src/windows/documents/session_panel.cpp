#include "windows/documents/session_panel.h"

#include "desktop/qt_text.h"
#include "desktop/scrolled.h"
#include "documents/forms/session_page_rows.h"

#include <QGridLayout>
#include <QScreen>

#include <algorithm>

namespace wortlex {
namespace {

// A form filled before its widgets are made.
Form made_form(const SessionSubject& subject) {
    Form form;
    session_form(form, subject);
    return form;
}

// A gravity and its Plato on one line.
void add_gravity(QGridLayout& grid, const FormWidgets& widgets, const std::string& key, int row) {
    add_field(grid, widgets, key, row, 0);
    add_field(grid, widgets, key + "_plato", row, 2);
}

} // namespace

SessionPanel::SessionPanel(const SessionSubject& subject, const Places& places, QWidget* parent)
    : QWidget(parent), form_(made_form(subject)), widgets_(form_, places, *this) {
    auto* const sides = new QHBoxLayout(this);
    sides->setContentsMargins(0, 0, 0, 0);
    auto* const left = new QVBoxLayout;
    left->addWidget(day_part());
    left->addWidget(recipe_part());
    left->addWidget(style_part());
    left->addLayout(figure_part());
    left->addStretch();
    auto* const right = new QVBoxLayout;
    right->addWidget(page_part());
    auto* const pages = new Scrolled(right, this);
    sides->addWidget(beside(*pages, left), 1);
    sides->addWidget(pages);
}

// On a small screen the way to the pages stays in sight, and the rest is scrolled.
QWidget* SessionPanel::beside(const QWidget& pages, QLayout* part) {
    constexpr int edges = 32; // of the window, and between the two
    auto* const scrolled = new Scrolled(part, this);
    const int room = screen()->availableSize().width() - pages.minimumSizeHint().width() - edges;
    scrolled->setMinimumWidth(std::min(scrolled->minimumSizeHint().width(), room));
    return scrolled;
}

QGroupBox* SessionPanel::box(const char* key) {
    return new QGroupBox(string_of(form_.heading_of(form_.row(key))), this);
}

QWidget* SessionPanel::day_part() {
    auto* const frame = box("brew_date");
    auto* const grid = new QGridLayout(frame);
    add_field(*grid, widgets_, "brew_date", 0, 0);
    grid->addWidget(&widgets_.field("pick_date"), 0, 2);
    add_field(*grid, widgets_, "head_brewer", 1, 0, 3);
    add_field(*grid, widgets_, "assistant_brewer", 2, 0, 3);
    grid->setColumnStretch(3, 1);
    return frame;
}

QWidget* SessionPanel::recipe_part() {
    auto* const frame = box("title");
    auto* const grid = new QGridLayout(frame);
    add_field(*grid, widgets_, "title", 0, 0);
    grid->addWidget(&widgets_.field("pick_recipe"), 0, 2);
    add_field(*grid, widgets_, "recipe_kind", 1, 0);
    grid->setColumnStretch(1, 1);
    return frame;
}

// The style's words have room, its ranges stand below them.
QWidget* SessionPanel::style_part() {
    auto* const frame = box("style_class");
    auto* const lines = new QVBoxLayout(frame);
    auto* const words = new QGridLayout;
    int place = 0;
    for (const auto* const key : {"style_class", "style_name", "style_type", "style_book"}) {
        add_field(*words, widgets_, key, place / 2, place % 2 * 2);
        ++place;
    }
    words->setColumnStretch(1, 1);
    words->setColumnStretch(3, 1);
    lines->addLayout(words);
    auto* const ranges = new QGridLayout;
    int column = 0;
    for (const auto* const key : {"min_sg", "max_sg", "min_ibu", "max_ibu", "min_colour", "max_colour"}) {
        auto& field = widgets_.field(key);
        const int digits = column > 2 ? 5 : 7; // of an IBU or a colour, of an SG, with room at both ends
        field.setFixedWidth(field.fontMetrics().horizontalAdvance(QLatin1Char('0')) * digits);
        add_field(*ranges, widgets_, key, 0, column);
        column += 2;
    }
    lines->addLayout(ranges);
    return frame;
}

// What the recipe aims at beside what was measured, like beside like.
QLayout* SessionPanel::figure_part() {
    auto* const line = new QHBoxLayout;
    line->addWidget(aim_part(), 1);
    line->addWidget(measured_part(), 1);
    return line;
}

QWidget* SessionPanel::aim_part() {
    auto* const frame = box("est_og");
    auto* const grid = new QGridLayout(frame);
    add_gravity(*grid, widgets_, "est_og", 0);
    int row = 1;
    for (const auto* const key : {"batch_size", "aimed_efficiency", "total_ibu", "colour", "boil_minutes"})
        add_field(*grid, widgets_, key, row++, 0);
    auto& swatch = widgets_.field("swatch");
    swatch.setMaximumHeight(widgets_.field("colour").sizeHint().height());
    grid->addWidget(&swatch, 4, 3);
    grid->setColumnStretch(4, 1);
    return frame;
}

QWidget* SessionPanel::measured_part() {
    auto* const frame = box("actual_og");
    auto* const grid = new QGridLayout(frame);
    add_gravity(*grid, widgets_, "actual_og", 0);
    add_gravity(*grid, widgets_, "actual_fg", 1);
    int row = 2;
    // Their labels, one of them long, reach over the first of the two columns of figures.
    for (const auto* const key : {"actual_efficiency", "alcohol_by_weight", "alcohol_by_volume"}) {
        grid->addWidget(widgets_.label(key), row, 0, 1, 3, Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(&widgets_.field(key), row++, 3);
    }
    add_field(*grid, widgets_, "adf", row, 0);
    add_field(*grid, widgets_, "rdf", row, 2);
    grid->setColumnStretch(4, 1);
    return frame;
}

QWidget* SessionPanel::page_part() {
    auto* const frame = box("ingredients");
    auto* const grid = new QGridLayout(frame);
    int row = 0;
    for (const std::string key : session_page_keys) {
        if (key == "finalize") grid->addWidget(&widgets_.field("analyze"), row++, 1);
        grid->addWidget(&widgets_.field(key + page_mark), row, 0, Qt::AlignCenter);
        grid->addWidget(&widgets_.field(key), row++, 1);
    }
    grid->setRowStretch(row, 1);
    return frame;
}

} // namespace wortlex
