#include "windows/mash/strike_calculator_window.h"

#include "desktop/captions.h"
#include "mash/strike_calculator_printout.h"
#include "program/program.h"

#include <QGridLayout>
#include <QPushButton>

namespace wortlex {
namespace {

// A form filled before its widgets are made, on the values of the last opening.
Form made_form(const WindowPorts& ports) {
    auto& program = ports.program;
    auto& calculator = program.strike_calculator;
    if (!calculator) calculator = new_strike_calculator(program.settings);
    open_strike_calculator(*calculator, program.settings);
    const auto print = [&program, &pages = ports.pages] {
        pages.show(strike_calculator_printout(*program.strike_calculator, program.settings));
    };
    Form form;
    strike_calculator_form(form, *calculator, program.settings, {.print = print, .help = nullptr});
    return form;
}

} // namespace

StrikeCalculatorWindow::StrikeCalculatorWindow(const WindowPorts& ports, const WindowInfo& info,
                                               QWidget* origin)
    : ToolWindow(info, 0, Opener::main, origin, places(ports.program)), form_(made_form(ports)),
      widgets_(form_, places(ports.program), *this) {
    lay_out_rows();
    close_by_escape();
    widgets_.field("pounds").setFocus();
}

// Both units of an amount stand in one line.
void StrikeCalculatorWindow::lay_out_rows() {
    auto* const layout = new QVBoxLayout(this);
    auto* const grid = new QGridLayout;
    layout->addLayout(grid);
    grid->addWidget(widgets_.label("thermal_mass"), 0, 0);
    grid->addWidget(&widgets_.field("thermal_mass"), 0, 1);
    int line = 1;
    for (const auto& [first, second] : strike_lines) {
        auto* const label = widgets_.label(first);
        grid->addWidget(label, line, 0);
        int column = 1;
        for (const auto key : {first, second}) {
            auto& field = widgets_.field(key);
            auto* const unit = widgets_.unit(form_.row(key));
            field.setAccessibleName(spoken(label->text()) + QLatin1Char(' ') + unit->text());
            field.setMaximumWidth(QWIDGETSIZE_MAX); // figures as wide as the fields above them
            grid->addWidget(&field, line, column++);
            grid->addWidget(unit, line, column++);
        }
        ++line;
    }
    grid->setColumnStretch(4, 1);
    auto* const buttons = button_line(widgets_, {"print", "help"}, {});
    buttons->addWidget(closing_ok(tr("OK")));
    layout->addStretch();
    layout->addLayout(buttons);
}

} // namespace wortlex
