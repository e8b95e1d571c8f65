#include "brewing/calendar.h"

#include "base/number.h"

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

std::string long_date(const CalendarDate& date) {
    const auto weekday = std::chrono::weekday(day_of(date)).c_encoding();
    return std::string(day_names.at(weekday)) + month_names.at(month_index(date)) +
           formatted("%02d, ", date.day) + std::to_string(date.year);
}

} // namespace wortlex
