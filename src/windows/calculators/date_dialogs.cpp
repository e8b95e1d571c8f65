#include "windows/calculators/date_dialogs.h"

#include "desktop/captions.h"
#include "program/program.h"
#include "windows/calculators/date_dialog.h"

#include <QGridLayout>

#include <array>
#include <utility>

namespace wortlex {

void name_calendar(QCalendarWidget& calendar, const QString& name) {
    calendar.setAccessibleName(name);
    constexpr std::array parts = {std::pair("qt_calendar_calendarview", "Days"),
                                  std::pair("qt_calendar_prevmonth", "Previous month"),
                                  std::pair("qt_calendar_nextmonth", "Next month")};
    for (const auto& [part, words] : parts)
        if (auto* const found = calendar.findChild<QWidget*>(QLatin1String(part)))
            found->setAccessibleName(QLatin1String(words) + QLatin1String(", ") + name);
}

DateDialog::DateDialog(std::string_view template_name, const CalendarDate& date, const Places& places,
                       QWidget* owner)
    : QDialog(owner), first_(new QCalendarWidget(this)), second_(new QCalendarWidget(this)),
      grow_(new QPushButton(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this)),
      place_(dress_window(*this, window_info(template_name), 0, Opener::session, owner, places)) {
    setWindowModality(Qt::WindowModal);
    make_calendar(*first_, QStringLiteral("date"), QStringLiteral("Date"));
    make_calendar(*second_, QStringLiteral("next_month"), QStringLiteral("Next month"));
    second_->hide();
    connect(first_, &QCalendarWidget::selectionChanged, this, [this] { follow_first(); });
    connect(first_, &QCalendarWidget::currentPageChanged, this, [this] { follow_first(); });
    connect(second_, &QCalendarWidget::selectionChanged, this, [this] { follow_second(); });
    connect(second_, &QCalendarWidget::currentPageChanged, this, [this] { follow_second(); });
    set_date(date);
    follow_first();

    auto* const grid = new QGridLayout(this);
    grid->addWidget(first_, 0, 0);
    grid->addWidget(second_, 0, 1);
    set_tips(*buttons_, true);
    grow_->setObjectName(QStringLiteral("grow"));
    grow_->setAutoDefault(false);
    buttons_->addButton(grow_, QDialogButtonBox::ActionRole);
    grid->addWidget(buttons_, 1, 0, 1, 2);
    grid->setSizeConstraint(QLayout::SetFixedSize); // so that it shrinks with its months
    show_size();
    connect(grow_, &QPushButton::clicked, this, [this] { grow_or_shrink(); });
    connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    first_->setFocus();
}

void DateDialog::setVisible(bool visible) {
    if (visible) place_.put();
    QDialog::setVisible(visible);
}

CalendarDate DateDialog::date() const {
    const auto chosen = first_->selectedDate();
    return {chosen.day(), chosen.month(), chosen.year()};
}

void DateDialog::set_date(const CalendarDate& date) {
    first_->setSelectedDate(QDate(date.year, date.month, date.day));
}

void DateDialog::add_button(const QString& key, const QString& caption, const QString& meaning,
                            const std::function<void()>& press) {
    auto* const button = buttons_->addButton(caption, QDialogButtonBox::ActionRole);
    button->setObjectName(key);
    button->setAutoDefault(false);
    set_tip(*button, meaning);
    connect(button, &QPushButton::clicked, this, press);
}

void DateDialog::make_calendar(QCalendarWidget& calendar, const QString& key, const QString& name) {
    calendar.setObjectName(key);
    name_calendar(calendar, name);
    calendar.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    connect(&calendar, &QCalendarWidget::activated, this, &QDialog::accept);
}

void DateDialog::follow_first() {
    if (std::exchange(is_following_, true)) return;
    const auto next = QDate(first_->yearShown(), first_->monthShown(), 1).addMonths(1);
    second_->setSelectedDate(first_->selectedDate());
    second_->setCurrentPage(next.year(), next.month());
    is_following_ = false;
}

void DateDialog::follow_second() {
    if (std::exchange(is_following_, true)) return;
    const auto before = QDate(second_->yearShown(), second_->monthShown(), 1).addMonths(-1);
    first_->setSelectedDate(second_->selectedDate());
    first_->setCurrentPage(before.year(), before.month());
    is_following_ = false;
}

void DateDialog::grow_or_shrink() {
    second_->setVisible(second_->isHidden());
    if (second_->isHidden()) first_->setCurrentPage(date().year, date().month);
    show_size();
}

void DateDialog::show_size() {
    const bool is_small = second_->isHidden();
    grow_->setText(is_small ? tr("&Grow") : tr("&Shrink"));
    set_tip(*grow_, is_small ? tr("Shows the next month, too") : tr("Shows one month"));
}

std::optional<CalendarDate> pick_brewing_date(const WindowPorts& ports, QWidget* owner,
                                              const CalendarDate& date) {
    DateDialog dialog("USERDATEDIALOG", date, places(ports.program), owner);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.date();
}

std::optional<CalendarDate> pick_bottling_date(const WindowPorts& ports, QWidget* owner,
                                               const CalendarDate& date,
                                               const std::function<std::optional<CalendarDate>()>& work_out) {
    DateDialog dialog("USERBOTTLEDATEDIALOG", date, places(ports.program), owner);
    dialog.add_button(QStringLiteral("auto"), QStringLiteral("&Auto"),
                      QStringLiteral("The brewing date and the days in both fermenters"), [&] {
                          if (const auto ready = work_out()) dialog.set_date(*ready);
                      });
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.date();
}

} // namespace wortlex
