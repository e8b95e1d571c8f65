#include "documents/bottling_date.h"

#include "brewing/calendar.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::int64_t longest = 100000; // days, whatever a file holds

} // namespace

std::optional<CalendarDate> fermented_until(const SessionDocument& session) {
    const auto& log = session.fermentation;
    if (log.primary_days == 0) return std::nullopt;
    const auto days =
        std::clamp(std::int64_t{log.primary_days} + log.secondary_days, std::int64_t{0}, longest);
    return moved_on(existing_day(brew_date(session)), static_cast<std::int32_t>(days));
}

CalendarDate bottling_date(const BottlingLog& log) {
    return {log.bottling_day, log.bottling_month, log.bottling_year};
}

void set_bottling_date(BottlingLog& log, const CalendarDate& date) {
    log.bottling_day = date.day;
    log.bottling_month = date.month;
    log.bottling_year = date.year;
}

} // namespace wortlex
