#include "base/windows1252.h"
#include "reports/sections.h"

namespace wortlex {

ReportSection notes_section(const ReportSource& source) {
    return {"Notes", {ReportText{utf8_from_windows1252(source.open.document.notes.view())}}};
}

ReportSection awards_section(const ReportSource& source) {
    return {"Awards", {ReportText{utf8_from_windows1252(source.open.document.awards.view())}}};
}

} // namespace wortlex
