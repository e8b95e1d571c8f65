#include "windows/documents/bottling_table.h"

#include "documents/forms/bottling_form.h"

#include <QGridLayout>
#include <QGroupBox>

namespace wortlex {
namespace {

QLayout* line_of(std::initializer_list<QWidget*> widgets) {
    auto* const line = new QHBoxLayout;
    for (auto* const widget : widgets) line->addWidget(widget);
    line->addStretch();
    return line;
}

QLayout* whole_part(const FormWidgets& widgets) {
    auto* const grid = new QGridLayout;
    grid->addWidget(widgets.label("bottling_date"), 0, 0);
    grid->addLayout(line_of({&widgets.field("bottling_date"), &widgets.field("pick_date")}), 0, 1);
    grid->addWidget(widgets.label("carbonation_level"), 1, 0);
    grid->addLayout(line_of({&widgets.field("carbonation_level"), widgets.label("co2_volumes"),
                             &widgets.field("co2_volumes")}),
                    1, 1);
    grid->addWidget(widgets.label("ferment_temperature"), 2, 0);
    grid->addLayout(line_of({&widgets.field("ferment_temperature"), widgets.unit("ferment_temperature")}), 2,
                    1);
    grid->setColumnStretch(1, 1);
    return grid;
}

// Two columns of the grid for each kind of vessel: its field, and what works it out.
void add_line(QGridLayout& grid, const FormWidgets& widgets, const std::string& key,
              const std::string& calculation = "") {
    const int row = grid.rowCount();
    grid.addWidget(&widgets.field(key + "_word"), row, 0);
    int column = 1;
    for (const std::string vessel : bottling_columns) {
        grid.addWidget(&widgets.field(vessel + "_" + key), row, column, 1, calculation.empty() ? 2 : 1);
        if (!calculation.empty()) grid.addWidget(&widgets.field(vessel + "_" + calculation), row, column + 1);
        column += 2;
    }
}

QWidget* vessel_part(const FormWidgets& widgets) {
    auto* const box = new QGroupBox;
    auto* const grid = new QGridLayout(box);
    int column = 1;
    for (const auto* const vessel : bottling_columns) {
        grid->addWidget(&widgets.field(vessel), 0, column, 1, 2);
        grid->setColumnStretch(column, 1);
        column += 2;
    }
    for (const auto* const key : {"amount", "method", "medium"}) add_line(*grid, widgets, key);
    add_line(*grid, widgets, "priming", "natural_calc");
    add_line(*grid, widgets, "liquid");
    add_line(*grid, widgets, "temperature");
    add_line(*grid, widgets, "pressure", "forced_calc");
    add_line(*grid, widgets, "days");
    grid->setRowStretch(grid->rowCount(), 1);
    return box;
}

} // namespace

QLayout* arrange_bottling(const FormWidgets& widgets) {
    auto* const page = new QVBoxLayout;
    page->addLayout(whole_part(widgets));
    page->addWidget(vessel_part(widgets), 1);
    return page;
}

} // namespace wortlex
