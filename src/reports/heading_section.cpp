#include "reports/row_parts.h"
#include "reports/sections.h"

namespace wortlex {

ReportSection heading_section(const ReportSource& source) {
    ReportLines lines{{90}, {}};
    if (const auto* const session = source.open.session; session != nullptr) {
        lines.rows = {{"Brewing Date: |%s\n", {date_words(brew_date(*session), source.open.settings)}},
                      {"Head Brewer:  |%s\n", {line_text(session->head_brewer)}},
                      {"Asst Brewer:  |%s\n", {line_text(session->assistant_brewer)}}};
    }
    lines.rows.push_back({.format = "Recipe:       |%s\n\n",
                          .values = {line_text(source.open.document.title)},
                          .is_title = source.open.session == nullptr});
    return section_of("", std::move(lines));
}

} // namespace wortlex
