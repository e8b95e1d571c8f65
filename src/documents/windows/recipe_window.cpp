#include "documents/windows/recipe_window.h"

#include "desktop/menus.h"
#include "desktop/text.h"
#include "documents/method_check.h"
#include "frame/documents.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>

namespace wortlex {
namespace {

// A form filled before its widgets are made.
Form made_form(const RecipeSubject& subject) {
    Form form;
    recipe_form(form, subject);
    return form;
}

void add_field(QGridLayout& grid, const FormWidgets& widgets, std::string_view key, int row, int column,
               int columns = 1) {
    if (auto* const label = widgets.label(key))
        grid.addWidget(label, row, column, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(&widgets.field(key), row, column + 1, 1, columns);
}

} // namespace

RecipeWindow::RecipeWindow(Program& program, const RecipeWindowPorts& ports, QWidget* origin)
    : ToolWindow(window_info("RECIPEDIALOG"), 0, Opener::main, origin,
                 {program.tool_positions, program.settings}),
      program_(program),
      ports_(ports), subject_{open_recipe(program), view_, program.color_table, [this] { show_colour(); }},
      form_(made_form(subject_)), widgets_(form_, program.settings, *this) {
    auto* const layout = new QVBoxLayout(this);
    add_menu();
    auto* const top = new QHBoxLayout;
    auto* const left = new QVBoxLayout;
    left->addLayout(recipe_part());
    left->addLayout(size_part());
    left->addStretch();
    top->addLayout(left, 3);
    top->addWidget(style_part(), 2);
    layout->addLayout(top);
    layout->addWidget(figure_part());
    layout->addLayout(
        list_part("malts", "show_potential", "total_grain",
                  {"malt_new", "malt_del", "malt_edit", "malt_more", "malt_less", "malt_detail"}),
        1);
    layout->addLayout(list_part("hops", "show_ibu", "total_hops",
                                {"hop_new", "hop_del", "hop_edit", "hop_more", "hop_less", "hop_loss",
                                 "boil_more", "boil_less"}),
                      1);
    layout->addLayout(page_part());
    reopen();
}

void RecipeWindow::add_menu() {
    auto* const menu = new QMenuBar(this);
    layout()->setMenuBar(menu);
    fill_menu(*menu, document_menu(), [this](int command) -> MenuAction {
        if (command == command::open_recipe) return {[this] { open_another(); }, QKeySequence::Open};
        if (command == command::close) return {[this] { close(); }, QKeySequence::Close};
        return {};
    });
}

QLayout* RecipeWindow::recipe_part() {
    auto* const grid = new QGridLayout;
    add_field(*grid, widgets_, "title", 0, 0);
    grid->addWidget(&widgets_.field("recipe_kind"), 1, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

QLayout* RecipeWindow::size_part() {
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

QWidget* RecipeWindow::style_part() {
    auto* const box = new QGroupBox(tr("Style"), this);
    auto* const grid = new QGridLayout(box);
    int row = 0;
    for (const auto* const key : {"style_class", "style_name", "style_type", "style_book"})
        add_field(*grid, widgets_, key, row++, 0);
    row = 0;
    for (const auto& [low, high] :
         {std::pair{"min_sg", "max_sg"}, {"min_ibu", "max_ibu"}, {"min_colour", "max_colour"}}) {
        add_field(*grid, widgets_, low, row, 2);
        add_field(*grid, widgets_, high, row++, 4);
    }
    grid->addWidget(&widgets_.field("pick_style"), row, 2, 1, 4, Qt::AlignRight);
    grid->setColumnStretch(1, 1);
    return box;
}

QWidget* RecipeWindow::figure_part() {
    auto* const strip = new QWidget(this);
    auto* const line = new QHBoxLayout(strip);
    line->setContentsMargins(0, 0, 0, 0);
    for (const auto* const key : {"sg", "plato", "total_ibu", "colour", "swatch"}) {
        line->addWidget(widgets_.label(key));
        line->addWidget(&widgets_.field(key));
        line->addSpacing(fontMetrics().height());
    }
    line->addStretch();
    return strip;
}

QLayout* RecipeWindow::list_part(std::string_view list, std::string_view choice, std::string_view total,
                                 std::initializer_list<std::string_view> buttons) {
    auto* const line = new QHBoxLayout;
    auto* const left = new QVBoxLayout;
    left->addWidget(&widgets_.field(list), 1);
    auto* const below = new QHBoxLayout;
    below->addWidget(&widgets_.field(choice));
    below->addStretch();
    below->addWidget(widgets_.label(total));
    below->addWidget(&widgets_.field(total));
    left->addLayout(below);
    line->addLayout(left, 1);
    auto* const column = new QGridLayout;
    int place = 0;
    for (const auto key : buttons) {
        column->addWidget(&widgets_.field(key), place / 2, place % 2);
        ++place;
    }
    column->setRowStretch(place, 1);
    line->addLayout(column);
    return line;
}

QLayout* RecipeWindow::page_part() {
    auto* const line = new QHBoxLayout;
    for (const auto* const key : {"yeast_and_water", "extras_and_notes", "mash_schedule"})
        line->addWidget(&widgets_.field(key));
    line->addStretch();
    for (const auto* const key : {"save", "print", "help"}) line->addWidget(&widgets_.field(key));
    auto* const ok = new QPushButton(tr("OK"), this);
    ok->setObjectName(QStringLiteral("ok"));
    connect(ok, &QPushButton::clicked, this, &QWidget::close);
    line->addWidget(ok);
    return line;
}

void RecipeWindow::reopen() {
    auto opened = open_recipe_window(subject_.open, program_.recipe_file.loaded_from_file);
    view_ = {.locks = opened.locks,
             .show_potential = opened.show_potential,
             .selected_malt = 0,
             .selected_hop = 0};
    saved_ = std::move(opened.saved);
    widgets_.refresh();
    if (!swatch_.isNull()) swatch_->set_colour(program_.figures.colour.srm);
    show_file_name();
}

void RecipeWindow::tell_method() {
    if (!program_.recipe_file.loaded_from_file) return;
    if (const auto warning = method_check_on_load(program_.document, program_.settings))
        ports_.prompts.tell({.text = *warning, .icon = Icon::warning});
}

void RecipeWindow::open_another() {
    if (!choose_and_open(program_, DocumentKind::recipe, ports_.files, ports_.prompts)) return;
    reopen();
    tell_method();
}

void RecipeWindow::show_colour() {
    if (swatch_.isNull())
        swatch_ = new ColorSwatchWindow(program_, program_.figures.colour.srm, Opener::recipe, this);
    bring_forward(*swatch_);
}

RecipeWindow::~RecipeWindow() {
    if (!swatch_.isNull()) swatch_->close();
}

void RecipeWindow::show_file_name() {
    const auto& info = window_info("RECIPEDIALOG");
    const auto caption = string_of(info.captions[0]);
    const auto& path = program_.recipe_file.path;
    const auto file = QFileInfo(QString::fromStdString(path)).fileName();
    setWindowTitle(file.isEmpty() ? caption : file + QStringLiteral(" - ") + caption);
}

} // namespace wortlex
