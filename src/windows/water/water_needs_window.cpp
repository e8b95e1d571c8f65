#include "windows/water/water_needs_window.h"

#include "desktop/captions.h"
#include "desktop/qt_text.h"
#include "desktop/scrolled.h"
#include "program/program.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>

namespace wortlex {
namespace {

constexpr double large = 1.4; // the letters of what the window is for, against the others

// What is worked out leads from stage to stage.
void stand_out(QWidget& figure, double size = 1) {
    auto font = figure.font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * size);
    figure.setFont(font);
}

bool is_result(const Row& row) {
    const auto* const entry = dynamic_cast<const EntryRow*>(&row);
    return entry != nullptr && entry->is_read_only();
}

// Rows below each other: label, field, unit.
QLayout* stage_rows(const Group& group, const FormWidgets& widgets) {
    auto* const grid = new QGridLayout;
    int line = 0;
    for (const auto& row : group.content.rows()) {
        auto& field = widgets.field(*row);
        grid->addWidget(widgets.label(*row), line, 0);
        field.setMaximumWidth(QWIDGETSIZE_MAX); // figures as wide as the fields
        if (is_result(*row)) {
            field.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
            grid->setColumnMinimumWidth(1, field.minimumWidth()); // a stage may have figures alone
            stand_out(field);
        }
        grid->addWidget(&field, line, 1);
        if (auto* const unit = widgets.unit(*row)) grid->addWidget(unit, line, 2);
        ++line;
    }
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(line, 1);
    return grid;
}

QLayout* stage_columns(const FormWidgets& widgets) {
    auto* const columns = new QHBoxLayout;
    QVBoxLayout* column = nullptr;
    for (const auto& group : widgets.form().groups()) {
        if (group->heading().empty()) continue;
        if (column == nullptr || group->begins_column) columns->addLayout(column = new QVBoxLayout);
        auto* const box = new QGroupBox(string_of(group->heading()));
        box->setLayout(stage_rows(*group, widgets));
        column->addWidget(box, 1);
    }
    return columns;
}

} // namespace

QLayout* arrange_water_needs(const FormWidgets& widgets) {
    auto* const page = new QVBoxLayout;
    page->addLayout(stage_columns(widgets));
    auto* const need = new QHBoxLayout;
    for (auto* const words : {static_cast<QWidget*>(widgets.label("needed")), &widgets.field("needed")})
        stand_out(*words, large);
    need->addWidget(widgets.label("needed"));
    need->addWidget(&widgets.field("needed"));
    need->addWidget(widgets.unit("needed"));
    need->addStretch();
    if (widgets.form().has("units")) need->addWidget(&widgets.field("units"));
    page->addLayout(need);
    page->addWidget(&widgets.field("flow"), 1);
    return page;
}

WaterNeedsWindow::WaterNeedsWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin)
    : ToolWindow(info, 0, Opener::main, origin, places(ports.program)), ports_(ports), form_(made_form()),
      widgets_(form_, places(ports.program), *this) {
    lay_out_rows();
    close_by_escape();
    widgets_.field("sparge").setFocus();
}

void WaterNeedsWindow::follow(Change change) {
    auto& [needs, balance, units] = ports_.program.water_needs;
    if (change == Change::settings) balance = BalanceWater(needs, true, ports_.program.settings);
}

Form WaterNeedsWindow::made_form() {
    auto& program = ports_.program;
    open_water_needs(program.water_needs, program.data_folder, program.settings);
    Form form;
    const auto print = [this, &program] {
        ports_.pages.show(water_needs_printout(program.water_needs, program.settings));
    };
    water_needs_form(form, program.water_needs.plan(), program.settings,
                     {.save_default = [this] { save_default(); }, .print = print, .help = nullptr});
    return form;
}

void WaterNeedsWindow::lay_out_rows() {
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(new Scrolled(arrange_water_needs(widgets_), this), 1);
    auto* const buttons = button_line(widgets_, {"save_default", "print", "help"}, {});
    buttons->addWidget(closing_ok(tr("OK")));
    auto* const cancel = new QPushButton(tr("Cancel"), this); // nothing to put back: the file is read anew
    cancel->setObjectName(QStringLiteral("cancel"));
    set_tip(*cancel, tr("Closes; the usual figures are back at the next opening"));
    connect(cancel, &QPushButton::clicked, this, &QWidget::close);
    buttons->addWidget(cancel);
    layout->addLayout(buttons);
}

// A new session begins with the usual figures, too.
void WaterNeedsWindow::save_default() {
    auto& program = ports_.program;
    if (save_usual_water(program.water_needs.needs, program.data_folder, ports_.prompts))
        program.water_usage = program.water_needs.needs;
}

} // namespace wortlex
