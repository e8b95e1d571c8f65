#include "reports/row_parts.h"
#include "reports/sections.h"

namespace wortlex {

ReportSection heading_section(const ReportSource& source) {
    return section_of(
        "", ReportLines{{90}, {{"Recipe:       |%s\n\n", {line_text(source.open.document.title)}}}});
}

} // namespace wortlex
