// When a session's beer is ready to be bottled.
#pragma once

#include "base/ports/clock.h"
#include "records/documents/session_document.h"

#include <optional>

namespace wortlex {

/// The brewing date moved on by the days in both fermenters; nothing as long as no day in the primary one is
/// logged.
std::optional<CalendarDate> fermented_until(const SessionDocument& session);

/// Why there is none, to be told.
inline constexpr const char* no_fermentation_days =
    "This function calculates the bottling date based on the brewing date plus the number of days the beer "
    "has "
    "been fermenting in primary and secondary fermenters. Unfortunately, you do not have any information in "
    "the fermentation details that would allow Wortlex to make this calculation.\n\nPlease enter the "
    "appropriate information in the fermentation details, then return here to calculate the bottling date.";

CalendarDate bottling_date(const BottlingLog& log);
void set_bottling_date(BottlingLog& log, const CalendarDate& date);

} // namespace wortlex
