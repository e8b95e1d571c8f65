#include "windows/calculators/calculator_window.h"

#include "desktop/captions.h"
#include "desktop/scrolled.h"
#include "program/program.h"

#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace wortlex {
namespace {

constexpr int title_bar_buttons = 80; // pixels

Form filled(const CalculatorWindow::Fill& fill, QWidget& window) {
    Form form;
    fill(form, window);
    return form;
}

void finish_line(const GridRow::Line& line, const FormWidgets& widgets) {
    for (const auto& cell : line.cells.rows()) {
        auto& field = widgets.field(*cell);
        if (auto* const word = qobject_cast<QLabel*>(&field))
            word->setWordWrap(false);
        else
            field.setMaximumWidth(QWIDGETSIZE_MAX); // figures as wide as the fields above them
    }
}

} // namespace

void finish_tables(const Form& form, const FormWidgets& widgets) {
    form.for_each([&](Row& row) {
        const auto* const grid = dynamic_cast<const GridRow*>(&row);
        if (grid == nullptr) return;
        for (const auto& line : grid->lines) finish_line(*line, widgets);
    });
}

bool run_calculator(const WindowPorts& ports, QWidget* owner, Form& form, const DialogUse& use) {
    FormDialog dialog(form, use, places(ports.program), owner);
    finish_tables(form, dialog.widgets());
    return dialog.exec() == QDialog::Accepted;
}

CalculatorWindow::CalculatorWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin,
                                   const Fill& fill, Buttons buttons)
    : ToolWindow(info, 0, Opener::main, origin, places(ports.program)), form_(filled(fill, *this)),
      widgets_(form_, places(ports.program), *this) {
    auto* const layout = new QVBoxLayout(this);
    layout->addStrut(fontMetrics().horizontalAdvance(windowTitle()) + title_bar_buttons);
    layout->addWidget(new Scrolled(lay_out(form_, widgets_), this), 1);
    finish_tables(form_, widgets_);
    add_buttons(buttons);
    if (auto* const first = widgets_.first_field()) first->setFocus();
    close_by_escape();
}

void CalculatorWindow::add_buttons(Buttons buttons) {
    auto* const box = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    if (buttons == Buttons::ok_and_cancel) box->addButton(QDialogButtonBox::Cancel);
    set_tips(*box, false);
    connect(box, &QDialogButtonBox::accepted, this, [this] {
        is_accepted_ = true;
        close();
    });
    connect(box, &QDialogButtonBox::rejected, this, &QWidget::close);
    layout()->addWidget(box);
}

void CalculatorWindow::closeEvent(QCloseEvent* event) {
    ToolWindow::closeEvent(event);
    if (event->isAccepted() && !is_accepted_) form_.cancel();
}

} // namespace wortlex
