#include "brewing/calendar.h"

#include "base/number.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace wortlex {
namespace {

constexpr std::array day_names = {"Sunday ",   "Monday ", "Tuesday ", "Wednesday ",
                                  "Thursday ", "Friday ", "Saturday "};
constexpr std::array month_names = {"January ",   "February ", "March ",    "April ",
                                    "May ",       "June ",     "July ",     "August ",
                                    "September ", "October ",  "November ", "December "};
constexpr std::array month_lengths = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

std::chrono::sys_days day_of(const CalendarDate& date) {
    return std::chrono::year_month_day(std::chrono::year(date.year),
                                       std::chrono::month(static_cast<unsigned>(date.month)),
                                       std::chrono::day(static_cast<unsigned>(date.day)));
}

CalendarDate date_of(const std::chrono::year_month_day& day) {
    return {static_cast<int>(static_cast<unsigned>(day.day())),
            static_cast<int>(static_cast<unsigned>(day.month())), static_cast<int>(day.year())};
}

std::size_t month_index(const CalendarDate& date) {
    return static_cast<std::size_t>(date.month - 1) % month_names.size();
}

} // namespace

std::int32_t days_between(const CalendarDate& start, const CalendarDate& stop) {
    return static_cast<std::int32_t>((day_of(stop) - day_of(start)).count());
}

CalendarDate moved_on(CalendarDate date, std::int32_t days) {
    const int length = month_lengths[month_index(date)];
    date.day += days;
    if (date.day <= length) return date;
    date.day -= length;
    if (++date.month <= 12) return date;
    return {date.day, 1, date.year + 1};
}

bool is_day(const CalendarDate& date) {
    return date.year > 0 && existing_day(date) == date;
}

CalendarDate existing_day(const CalendarDate& date) {
    constexpr int last_year = 9999;
    const std::chrono::year year(std::clamp(date.year, 1, last_year));
    const std::chrono::month month(static_cast<unsigned>(std::clamp(date.month, 1, 12)));
    const auto last = date_of(year / month / std::chrono::last);
    return {std::clamp(date.day, 1, last.day), last.month, last.year};
}

CalendarDate next_day(const CalendarDate& date) {
    return date_of(day_of(date) + std::chrono::days(1));
}

std::string short_date(const CalendarDate& date, DateFormat format) {
    const auto day = formatted("%02d", date.day), month = formatted("%02d", date.month),
               year = std::to_string(date.year);
    switch (format) {
    case DateFormat::month_day_year:
        return month + "-" + day + "-" + year;
    case DateFormat::year_month_day:
        return year + "-" + month + "-" + day;
    case DateFormat::day_name_year:
        break;
    }
    return day + "-" + std::string(month_names.at(month_index(date)), 3) + "-" + year;
}

std::string long_date(const CalendarDate& date) {
    const auto weekday = std::chrono::weekday(day_of(date)).c_encoding();
    return std::string(day_names.at(weekday)) + month_names.at(month_index(date)) +
           formatted("%02d, ", date.day) + std::to_string(date.year);
}

} // namespace wortlex
