#include "base/windows1252.h"
#include "reports/sections.h"

namespace wortlex {

ReportText::ReportText(std::string_view typed) {
    for (std::size_t i = 0; i < typed.size(); ++i) {
        const bool is_return = typed[i] == '\r';
        if (is_return || typed[i] == '\n') text_ += "\r\n";
        if (!is_return && typed[i] != '\n') text_ += typed[i];
        if (is_return && typed.substr(i + 1, 1) == "\n") ++i;
    }
}

ReportSection notes_section(const ReportSource& source) {
    return section_of("Notes", ReportText{utf8_from_windows1252(source.open.document.notes.view())});
}

ReportSection awards_section(const ReportSource& source) {
    return section_of("Awards", ReportText{utf8_from_windows1252(source.open.document.awards.view())});
}

} // namespace wortlex
