// What the pages of a session print: a page each, of the rows of the report's section on the same subject.
#pragma once

#include "reports/report.h"
#include "reports/report_source.h"

namespace wortlex {

enum class SessionPrint {
    mash,
    efficiency,
    water_needed,
    water_match,
    water_adjustment,
    fermentation,
    bottling,
    notes
};

/// Of a session. That of the mash is for the simple schedule.
DocumentReport session_page(SessionPrint print, const ReportSource& source);

} // namespace wortlex
