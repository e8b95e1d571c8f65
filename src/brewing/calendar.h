// Days of the calendar.
#pragma once

#include "base/ports/clock.h"
#include "settings/codes.h"

#include <cstdint>
#include <string>

namespace wortlex {

/// Calendar days from one date to the other, negative backwards. Hours do not come into it, so a change to
/// summer time loses none.
std::int32_t days_between(const CalendarDate& start, const CalendarDate& stop);

/// A date moved on as the bottling date is: by one step of the month at the most, however many the days, and
/// with 29 days in every February.
CalendarDate moved_on(CalendarDate date, std::int32_t days);

/// Whether the calendar has such a day.
bool is_day(const CalendarDate& date);

/// The day of the calendar nearest to what a record holds: 31 February is its last day, a zero or less the
/// first of its kind.
CalendarDate existing_day(const CalendarDate& date);

/// The day after one that exists.
CalendarDate next_day(const CalendarDate& date);

/// As the setting asks for: "03-05-2001", "2001-03-05" or "05-Mar-2001".
std::string short_date(const CalendarDate& date, DateFormat format);

/// "Monday March 05, 2001".
std::string long_date(const CalendarDate& date);

} // namespace wortlex
