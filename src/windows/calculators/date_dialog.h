// A date in a calendar of one month or two.
#pragma once

#include "base/ports/clock.h"
#include "desktop/tool_window.h"

#include <QCalendarWidget>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

#include <functional>

namespace wortlex {

/// To a screen reader, with its days and the buttons of its months.
void name_calendar(QCalendarWidget& calendar, const QString& name);

/// Modal to its owner. The second month follows the first one; a day can be chosen in either.
class DateDialog : public QDialog {
public:
    DateDialog(std::string_view template_name, const CalendarDate& date, const Places& places,
               QWidget* owner);
    CalendarDate date() const;
    void set_date(const CalendarDate& date);
    /// A button more, beside the one that grows.
    void add_button(const QString& key, const QString& caption, const QString& meaning,
                    const std::function<void()>& press);
    void setVisible(bool visible) override;

private:
    void make_calendar(QCalendarWidget& calendar, const QString& key, const QString& name);
    /// Shows the month behind the one of the first calendar, and the chosen day.
    void follow_first();
    void follow_second();
    void grow_or_shrink();
    void show_size();

    QCalendarWidget* first_;
    QCalendarWidget* second_;
    QPushButton* grow_;
    QDialogButtonBox* buttons_;
    WindowPlace& place_;
    bool is_following_ = false;
};

} // namespace wortlex
