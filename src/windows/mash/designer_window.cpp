#include "windows/mash/designer_window.h"

#include "desktop/form_dialog.h"
#include "desktop/list_keys.h"
#include "desktop/qt_text.h"
#include "desktop/scrolled.h"
#include "desktop/undo_keys.h"
#include "program/program.h"
#include "windows/mash/mash_chart_window.h"

#include <QApplication>
#include <QFocusEvent>
#include <QGroupBox>
#include <QKeyEvent>

#include <utility>

namespace wortlex {
namespace {

QGroupBox* box_around(QLayout* part, const QString& title) {
    auto* const box = new QGroupBox(title);
    box->setAccessibleName(title);
    box->setLayout(part);
    return box;
}

} // namespace

DesignerWindow::DesignerWindow(const WindowPorts& ports, const WindowInfo& info, Opener opener,
                               QWidget* origin, MashDesigner designer)
    : ToolWindow(info, 0, opener, origin, places(ports.program)), ports_(ports),
      designer_(std::move(designer)) {}

void DesignerWindow::begin(const std::function<void(Form& form)>& add, std::function<void()> revert) {
    mash_designer_form(form_, designer_, actions(std::move(revert)));
    if (add) add(form_);
    widgets_.emplace(form_, places(ports_.program), *this);
    lay_out_rows();
    auto& steps = widgets_->field("steps");
    press_by_key(steps, Qt::Key_Insert, widgets_->field("new_step"));
    press_by_key(steps, QKeySequence::Delete, widgets_->field("delete_step"));
    press_in_window(*this, QKeySequence::Open, widgets_->field("load"));
    add_undo_keys(
        *this, [this] { travel(Travel::undo); }, [this] { travel(Travel::redo); });
    close_by_escape();
    new WindowUndo(*this);
    (form_.row("delete_step").is_enabled() ? steps : widgets_->field("new_step")).setFocus();
}

DesignerActions DesignerWindow::actions(std::function<void()> revert) {
    return {.ask_naming = [this](const StepNaming& naming,
                                 bool is_first) { return ask_naming(naming, is_first); },
            .load = [this] { load_schedule(designer_, desk()); },
            .save = [this] { save_schedule(designer_, desk()); },
            .revert = std::move(revert),
            .graph =
                [this] {
                    const auto* const chart =
                        designer_.owner.is_free() ? "BATCHMASHGRAPHDIALOG" : "BATCHDETAILMASHGRAPHDIALOG";
                    open_mash_chart(
                        ports_, chart, [this] { return charted(designer_.design.mash); }, this);
                },
            .print = [this] { ports_.pages.show(printout()); },
            .help = nullptr};
}

ScheduleDesk DesignerWindow::desk() const {
    return {ports_.files, ports_.program.folders, ports_.prompts};
}

// A new step goes on with its temperature.
std::optional<StepNaming> DesignerWindow::ask_naming(StepNaming naming, bool is_first) {
    const bool is_new = naming.name.empty();
    Form form;
    step_name_form(form, naming, is_first, ports_.prompts);
    if (!run_dialog(form, {.template_name = "STEPNAMEDIALOG"}, places(ports_.program), this))
        return std::nullopt;
    if (is_new && !naming.name.empty())
        QMetaObject::invokeMethod(this, &DesignerWindow::enter_step, Qt::QueuedConnection);
    return naming;
}

// As by the tab key, also where the window has not become the active one again yet: its text is selected.
void DesignerWindow::enter_step() {
    auto& field = widgets_->field("start_temp");
    field.setFocus(Qt::OtherFocusReason);
    QFocusEvent entered(QEvent::FocusIn, Qt::OtherFocusReason);
    QApplication::sendEvent(&field, &entered);
}

void DesignerWindow::lay_out_rows() {
    auto* const upper = new QHBoxLayout;
    upper->addLayout(list_part(), 1);
    upper->addLayout(step_part());
    auto* const work = new QVBoxLayout;
    work->addLayout(upper, 1);
    work->addWidget(box_around(mash_part(), tr("Mash")));
    buttons_ = button_line(*widgets_, {"load", "save", "revert"}, {"graph", "print", "help"});
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(new Scrolled(work, this), 1);
    layout->addLayout(buttons_);
}

QLayout* DesignerWindow::list_part() {
    auto* const part = new QVBoxLayout;
    part->addWidget(&widgets_->field("steps"), 1);
    auto* const line = new QHBoxLayout;
    for (const auto* const key : {"new_step", "delete_step"}) line->addWidget(&widgets_->field(key));
    line->addStretch();
    part->addLayout(line);
    return part;
}

QLayout* DesignerWindow::step_part() {
    auto* const grid = new QGridLayout;
    int line = 0;
    for (const auto* const key :
         {"start_temp", "stop_temp", "step_time", "rest_time", "infuse_temp", "thickness"})
        add_field(*grid, *widgets_, key, line++, 0, 3);
    auto* const pressed = new QHBoxLayout;
    for (const auto* const key : {"thick", "medium", "thin", "current"})
        pressed->addWidget(&widgets_->field(key));
    grid->addLayout(pressed, line++, 0, 1, 4);
    grid->setRowStretch(line, 1);
    auto* const part = new QVBoxLayout;
    part->addWidget(box_around(grid, tr("Step")), 1);
    if (auto* const added = added_part()) part->addWidget(added);
    return part;
}

// The water beside what it is mashed with; the notes of the units below.
QLayout* DesignerWindow::mash_part() {
    auto* const grid = new QGridLayout;
    const auto add_column = [&](int column, std::initializer_list<const char*> keys) {
        int line = 0;
        for (const auto* const key : keys)
            if (form_.has(key)) add_field(*grid, *widgets_, key, line++, column);
    };
    add_column(0, {"grain", "dough_in", "volume", "ratio"});
    add_column(2, {"grain_temp", "thermal_mass", "total_volume"});
    if (form_.has("volume_units")) {
        auto* const units = new QVBoxLayout;
        for (const auto* const key : {"temperature_units", "volume_units"})
            units->addWidget(&widgets_->field(key));
        units->addStretch();
        grid->addLayout(units, 0, 4, grid->rowCount(), 1);
    }
    const int last = grid->rowCount();
    add_field(*grid, *widgets_, "mash_name", last, 0, 4);
    if (form_.has("units_note")) grid->addWidget(&widgets_->field("units_note"), last + 1, 0, 1, 6);
    grid->setColumnStretch(5, 1);
    return grid;
}

bool DesignerWindow::can_travel(Travel travel) const {
    const auto& history = designer_.history;
    return travel == Travel::undo ? history.can_undo() : history.can_redo();
}

void DesignerWindow::travel(Travel travel) {
    travel == Travel::undo ? undo(designer_) : redo(designer_);
    widgets_->refresh();
}

} // namespace wortlex
