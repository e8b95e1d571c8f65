#include "windows/calculators/date_calculator_window.h"

#include "brewing/calendar.h"
#include "desktop/captions.h"
#include "program/program.h"
#include "windows/calculators/date_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>

namespace wortlex {
namespace {

CalendarDate date_of(const QCalendarWidget& calendar) {
    const auto date = calendar.selectedDate();
    return {date.day(), date.month(), date.year()};
}

Form days_form(std::function<std::string()> days) {
    Form form;
    form.rows().shown("days", std::move(days)).figure().label("Days Between Dates:");
    return form;
}

} // namespace

DateCalculatorWindow::DateCalculatorWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin)
    : ToolWindow(info, 0, Opener::main, origin, places(ports.program)), start_(new QCalendarWidget(this)),
      stop_(new QCalendarWidget(this)), form_(days_form([this] { return days(); })),
      widgets_(form_, places(ports.program), *this) {
    auto* const grid = new QGridLayout(this);
    add_calendar(*start_, QStringLiteral("&Start Date"), 0);
    add_calendar(*stop_, QStringLiteral("S&top Date"), 1);
    auto* const result = new QHBoxLayout;
    result->addWidget(widgets_.label("days"));
    result->addWidget(&widgets_.field("days"));
    result->addStretch();
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    set_tips(*buttons, false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QWidget::close);
    result->addWidget(buttons);
    grid->addLayout(result, 2, 0, 1, 2);
    close_by_escape();
    start_->setFocus();
    widgets_.refresh();
}

void DateCalculatorWindow::add_calendar(QCalendarWidget& calendar, const QString& name, int column) {
    auto* const label = new QLabel(name, this);
    label->setBuddy(&calendar);
    calendar.setObjectName(column == 0 ? QStringLiteral("start") : QStringLiteral("stop"));
    name_calendar(calendar, spoken(name));
    connect(&calendar, &QCalendarWidget::selectionChanged, this, [this] { widgets_.refresh(); });
    auto& grid = dynamic_cast<QGridLayout&>(*layout());
    grid.addWidget(label, 0, column);
    grid.addWidget(&calendar, 1, column);
}

std::string DateCalculatorWindow::days() const {
    return std::to_string(days_between(date_of(*start_), date_of(*stop_)));
}

} // namespace wortlex
