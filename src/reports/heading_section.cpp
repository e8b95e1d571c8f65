#include "reports/row_parts.h"
#include "reports/sections.h"

namespace wortlex {

ReportSection heading_section(const ReportSource& source) {
    return section_of("", ReportLines{{90},
                                      {{.format = "Recipe:       |%s\n\n",
                                        .values = {line_text(source.open.document.title)},
                                        .is_title = true}}});
}

} // namespace wortlex
