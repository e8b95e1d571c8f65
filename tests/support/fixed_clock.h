// A clock that stands.
#pragma once

#include "base/ports/clock.h"

namespace wortlex {

struct FixedClock : Clock {
    std::int64_t seconds = 0;
    CalendarDate date;
    std::int64_t now() const override { return seconds; }
    CalendarDate today() const override { return date; }
};

} // namespace wortlex
