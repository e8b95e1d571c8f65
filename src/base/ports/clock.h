// The clock, and the date on the calendar.
#pragma once

#include <cstdint>

namespace wortlex {

struct CalendarDate {
    int day = 0;
    int month = 0; ///< 1 to 12
    int year = 0;
    bool operator==(const CalendarDate&) const = default;
};

class Clock {
public:
    virtual ~Clock() = default;
    /// Seconds since 1970, UTC.
    virtual std::int64_t now() const = 0;
    /// The date on the user's calendar.
    virtual CalendarDate today() const = 0;
};

} // namespace wortlex
