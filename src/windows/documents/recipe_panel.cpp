#include "windows/documents/recipe_panel.h"

#include "desktop/list_keys.h"

#include <QGridLayout>
#include <QGroupBox>

namespace wortlex {
namespace {

// A form filled before its widgets are made.
Form made_form(const RecipeSubject& subject) {
    Form form;
    recipe_form(form, subject);
    return form;
}

} // namespace

RecipePanel::RecipePanel(const RecipeSubject& subject, const Places& places, QWidget* parent)
    : QWidget(parent), form_(made_form(subject)), widgets_(form_, places, *this) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const top = new QHBoxLayout;
    auto* const left = new QVBoxLayout;
    left->addLayout(name_part());
    left->addLayout(size_part());
    left->addStretch();
    top->addLayout(left, 3);
    top->addWidget(style_part(), 2);
    layout->addLayout(top);
    layout->addWidget(figure_part());
    layout->addLayout(
        list_part("malts", "show_potential", "total_grain",
                  {"malt_new", "malt_del", "malt_edit", "malt_detail", "malt_more", "malt_less"}),
        1);
    layout->addLayout(list_part("hops", "show_ibu", "total_hops",
                                {"hop_new", "hop_del", "hop_edit", "hop_loss", "hop_more", "hop_less",
                                 "boil_more", "boil_less"}),
                      1);
    add_list_keys("malts", "malt_");
    add_list_keys("hops", "hop_");
}

void RecipePanel::add_list_keys(std::string_view list, const std::string& buttons) {
    for (const auto& [key, button] :
         {std::pair(QKeySequence(Qt::Key_Insert), "new"),
          std::pair(QKeySequence(QKeySequence::Delete), "del"), std::pair(QKeySequence(Qt::Key_Plus), "more"),
          std::pair(QKeySequence(Qt::Key_Minus), "less")})
        press_by_key(widgets_.field(list), key, widgets_.field(buttons + button));
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
    for (const auto& [low, high, band] :
         {std::tuple("min_sg", "max_sg", "sg_band"), std::tuple("min_ibu", "max_ibu", "ibu_band"),
          std::tuple("min_colour", "max_colour", "colour_band")}) {
        add_field(*grid, widgets_, low, row, 0);
        add_field(*grid, widgets_, high, row, 2);
        grid->addWidget(&widgets_.field(band), row++, 4, Qt::AlignVCenter);
    }
    grid->setColumnStretch(4, 1);
    return box;
}

QWidget* RecipePanel::figure_part() {
    auto* const strip = new QWidget(this);
    auto* const line = new QHBoxLayout(strip);
    line->setContentsMargins(0, 0, 0, 0);
    for (const auto* const key : {"sg", "plato", "total_ibu", "colour", "swatch"}) {
        line->addWidget(widgets_.label(key));
        line->addWidget(&widgets_.field(key));
        if (auto* const unit = widgets_.unit(form_.row(key))) line->addWidget(unit);
        line->addSpacing(fontMetrics().height());
    }
    line->addStretch();
    return strip;
}

QLayout* RecipePanel::list_part(std::string_view list, std::string_view choice, std::string_view total,
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

} // namespace wortlex
