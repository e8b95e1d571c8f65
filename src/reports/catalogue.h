// The report on a document: which sections it has, in their order.
#pragma once

#include "reports/report.h"
#include "reports/report_source.h"
#include "settings/system_files.h"

namespace wortlex {

/// The whole document, or of a session only the recipe that it brews.
enum class ReportPart { whole, recipe };

/// The sections that `wanted` asks for, between those that every report has.
DocumentReport document_report(const ReportSource& source, const PrintSelection& wanted,
                               ReportPart part = ReportPart::whole);

/// Those that a competition form can hold.
std::vector<ReportSection> competition_sections(const ReportSource& source, const PrintSelection& wanted);

} // namespace wortlex
