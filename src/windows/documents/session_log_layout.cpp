#include "windows/documents/session_log_layout.h"

#include "documents/forms/bottling_form.h"
#include "documents/forms/efficiency_form.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QTimer>

namespace wortlex {
namespace {

QLayout* line_of(std::initializer_list<QWidget*> widgets) {
    auto* const line = new QHBoxLayout;
    for (auto* const widget : widgets) line->addWidget(widget);
    line->addStretch();
    return line;
}

// The words before a line or above a column, in one piece.
QLabel* words_of(const FormWidgets& widgets, const std::string& key) {
    auto& words = dynamic_cast<QLabel&>(widgets.field(key));
    words.setWordWrap(false);
    return &words;
}

std::string cell_key(std::string_view column, std::string_view line) {
    std::string key(column);
    return key.append("_").append(line);
}

// A table of figures: `keys` name its lines, the columns what stands before them in the keys of the cells.
template <class Columns, class Lines>
QGridLayout* figure_table(const FormWidgets& widgets, const Columns& columns, const Lines& keys) {
    auto* const grid = new QGridLayout;
    int column = 1;
    for (const auto& of : columns) {
        auto* const head = words_of(widgets, cell_key(of, "head"));
        head->setAlignment(Qt::AlignCenter);
        grid->addWidget(head, 0, column++, Qt::AlignHCenter);
    }
    for (const auto& key : keys) {
        const int row = grid->rowCount();
        grid->addWidget(words_of(widgets, cell_key(key, "word")), row, 0);
        column = 1;
        for (const auto& of : columns)
            grid->addWidget(&widgets.field(cell_key(of, key)), row, column++, Qt::AlignHCenter);
    }
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(grid->rowCount(), 1);
    return grid;
}

QGroupBox* box_of(const char* title, QLayout* layout) {
    auto* const box = new QGroupBox(QString::fromLatin1(title));
    box->setLayout(layout);
    return box;
}

QLayout* answer_part(const FormWidgets& widgets) {
    auto* const line = new QHBoxLayout;
    for (const auto* const key : {"actual_efficiency", "recipe_efficiency"}) {
        for (auto* const widget : {static_cast<QWidget*>(widgets.label(key)), &widgets.field(key),
                                   static_cast<QWidget*>(widgets.unit(key))})
            line->addWidget(widget);
        line->addSpacing(widgets.field(key).fontMetrics().height() * 2);
    }
    auto& answer = widgets.field("actual_efficiency");
    auto font = answer.font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    answer.setFont(font);
    line->addStretch();
    return line;
}

QLayout* recorded_part(const FormWidgets& widgets) {
    auto* const grid = new QGridLayout;
    int row = 0;
    for (const auto* const key :
         {"recorded_volume", "losses", "total_volume", "recorded_og", "recorded_og_plato"})
        add_field(*grid, widgets, key, row++, 0);
    auto* const instruments = new QHBoxLayout;
    instruments->addWidget(&widgets.field("hydrometer"));
    instruments->addWidget(&widgets.field("refractometer"));
    grid->addLayout(instruments, row, 0, 1, 2);
    grid->setRowStretch(row + 1, 1);
    return grid;
}

QLayout* points_part(const FormWidgets& widgets) {
    auto* const grid = figure_table(widgets, point_columns, point_lines);
    const int row = grid->rowCount() - 1;
    grid->addWidget(widgets.label("actual_mash_points"), row, 0);
    grid->addWidget(&widgets.field("actual_mash_points"), row, 2, Qt::AlignHCenter);
    return grid;
}

QLayout* whole_part(const FormWidgets& widgets) {
    auto* const grid = new QGridLayout;
    widgets.field("bottling_date").setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
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
void add_vessel_line(QGridLayout& grid, const FormWidgets& widgets, const std::string& key,
                     const std::string& calculation = "") {
    const int row = grid.rowCount();
    grid.addWidget(words_of(widgets, key + "_word"), row, 0);
    int column = 1;
    for (const auto& vessel : bottling_columns) {
        grid.addWidget(&widgets.field(cell_key(vessel, key)), row, column, 1, calculation.empty() ? 2 : 1);
        if (!calculation.empty())
            grid.addWidget(&widgets.field(cell_key(vessel, calculation)), row, column + 1);
        column += 2;
    }
}

// With its columns the window grows and shrinks.
void fit_window_to(const QWidget& check, QWidget& box) {
    QObject::connect(qobject_cast<const QCheckBox*>(&check), &QCheckBox::toggled, &box,
                     [&box] { QTimer::singleShot(0, &box, [&box] { box.window()->adjustSize(); }); });
}

QWidget* vessel_part(const FormWidgets& widgets) {
    auto* const box = new QGroupBox;
    auto* const grid = new QGridLayout(box);
    int column = 1;
    for (const auto* const vessel : bottling_columns) {
        grid->addWidget(&widgets.field(vessel), 0, column, 1, 2);
        fit_window_to(widgets.field(vessel), *box);
        column += 2;
    }
    grid->addWidget(&widgets.field("choose_vessels"), 1, 1, 1, column);
    for (const auto* const key : {"amount", "method", "medium"}) add_vessel_line(*grid, widgets, key);
    add_vessel_line(*grid, widgets, "priming", "natural_calc");
    add_vessel_line(*grid, widgets, "liquid");
    add_vessel_line(*grid, widgets, "temperature");
    add_vessel_line(*grid, widgets, "pressure", "forced_calc");
    add_vessel_line(*grid, widgets, "days");
    grid->setRowStretch(grid->rowCount(), 1);
    grid->setColumnStretch(column, 1);
    return box;
}

} // namespace

QLayout* arrange_efficiency(const FormWidgets& widgets) {
    auto* const page = new QVBoxLayout;
    page->addLayout(answer_part(widgets));
    auto* const beside = new QHBoxLayout;
    beside->addWidget(box_of("Targets", figure_table(widgets, target_columns, target_lines)), 1);
    beside->addWidget(box_of("Recorded", recorded_part(widgets)));
    page->addLayout(beside);
    page->addWidget(&widgets.field("measured_in_fermenter"));
    page->addWidget(&widgets.field("where_note"));
    page->addWidget(box_of("Points", points_part(widgets)));
    page->addStretch();
    return page;
}

QLayout* arrange_bottling(const FormWidgets& widgets) {
    auto* const page = new QVBoxLayout;
    page->addLayout(whole_part(widgets));
    page->addWidget(vessel_part(widgets), 1);
    return page;
}

QLayout* arrange_notes(const FormWidgets& widgets) {
    auto* const grid = new QGridLayout;
    int place = 0;
    for (const auto* const key : {"mash_notes", "fermentation_notes", "tasting_notes", "problems"}) {
        auto& text = widgets.field(key);
        text.setMinimumSize(text.fontMetrics().averageCharWidth() * 44, text.fontMetrics().lineSpacing() * 8);
        const int row = place / 2 * 2, column = place % 2;
        grid->addWidget(widgets.label(key), row, column);
        grid->addWidget(&text, row + 1, column);
        grid->setRowStretch(row + 1, 1);
        ++place;
    }
    return grid;
}

} // namespace wortlex
