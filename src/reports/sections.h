// The sections of a report, one function each.
#pragma once

#include "reports/report.h"
#include "reports/report_source.h"
#include "settings/system_files.h"

namespace wortlex {

ReportSection heading_section(const ReportSource& source);
ReportSection style_section(const ReportSource& source);
ReportSection specifics_section(const ReportSource& source);
ReportSection pre_boil_section(const ReportSource& source);
ReportSection formulas_section(const ReportSource& source);
ReportSection grain_section(const ReportSource& source);
ReportSection hop_section(const ReportSource& source);
ReportSection extras_section(const ReportSource& source);
ReportSection yeast_section(const ReportSource& source);
ReportSection water_section(const ReportSource& source);
/// Simple or complex, whichever is in force.
ReportSection mash_section(const ReportSource& source);
ReportSection notes_section(const ReportSource& source);
ReportSection awards_section(const ReportSource& source);

/// Of the schedule in force, by the options and the scale of the report.
bool has_mash_chart(const ReportSource& source);
ReportSection mash_chart_section(const ReportSource& source, const PrintSelection& wanted);

/// Of a session only, as those that follow.
ReportSection water_match_section(const ReportSource& source);
ReportSection water_adjustment_section(const ReportSource& source);
bool has_water_chart(const SessionDocument& session);
ReportSection water_chart_section(const ReportSource& source, const PrintSelection& wanted);
ReportSection water_needed_section(const ReportSource& source);
ReportSection efficiency_section(const ReportSource& source);
ReportSection fermentation_section(const ReportSource& source);
bool has_filled_vessels(const SessionDocument& session);
ReportSection bottling_section(const ReportSource& source);
ReportSection inventory_section(const ReportSource& source);

/// In the order of the record.
enum class SessionNote : std::uint8_t { mash, fermentation, tasting, problems };
bool has_session_note(const SessionDocument& session, SessionNote note);
bool has_session_notes(const SessionDocument& session);
ReportSection session_note_section(const ReportSource& source, SessionNote note);

} // namespace wortlex
