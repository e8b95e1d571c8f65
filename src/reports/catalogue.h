// The report on a recipe: which sections it has, in their order.
#pragma once

#include "reports/report.h"
#include "reports/report_source.h"
#include "settings/system_files.h"

namespace wortlex {

/// The sections that `wanted` asks for, between those that every report has. Of a session it is the recipe it
/// brews.
DocumentReport document_report(const ReportSource& source, const PrintSelection& wanted);

} // namespace wortlex
