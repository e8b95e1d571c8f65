#include "base/windows1252.h"
#include "reports/sections.h"

namespace wortlex {

ReportSection notes_section(const ReportSource& source) {
    return section_of("Notes", ReportText{utf8_from_windows1252(source.open.document.notes.view())});
}

ReportSection awards_section(const ReportSource& source) {
    return section_of("Awards", ReportText{utf8_from_windows1252(source.open.document.awards.view())});
}

} // namespace wortlex
