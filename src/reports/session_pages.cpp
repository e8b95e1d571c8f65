#include "reports/session_pages.h"

#include "base/number.h"
#include "reports/mash_rows.h"
#include "reports/row_parts.h"
#include "reports/sections.h"

namespace wortlex {
namespace {

const char* session_page_title(SessionPrint print) {
    switch (print) {
    case SessionPrint::mash:
        return "Wortlex Brewing Session - Mash Details Printout";
    case SessionPrint::efficiency:
        return "Wortlex Brewing Session - Mash Efficiency Details Printout";
    case SessionPrint::water_needed:
    case SessionPrint::water_match:
    case SessionPrint::water_adjustment:
        return "Wortlex Brewing Session";
    case SessionPrint::fermentation:
        return "Wortlex Brewing Session - Fermentation Details";
    case SessionPrint::bottling:
        return "Wortlex Brewing Session - Bottling Details Printout";
    case SessionPrint::notes:
        break;
    }
    return "Wortlex Brewing Session - Additional Notes";
}

// That of the mash tells its day in plain numbers, whatever the settings say.
std::string day_words(SessionPrint print, const ReportSource& source) {
    const auto day = brew_date(*source.open.session);
    if (print != SessionPrint::mash) return date_words(day, source.open.settings);
    return formatted("%d", day.month) + formatted("/%d", day.day) + formatted("/%d", day.year);
}

ReportSection head(SessionPrint print, const ReportSource& source) {
    return section_of("", ReportLines{{90},
                                      {{"Recipe: |%s\n", {line_text(source.open.document.title)}},
                                       {"Brewing Date: |%s\n\n", {day_words(print, source)}}}});
}

ReportSection under(const char* heading, ReportSection section) {
    section.heading = heading;
    return section;
}

void add_notes(std::vector<ReportSection>& sections, const ReportSource& source) {
    for (const auto note :
         {SessionNote::mash, SessionNote::fermentation, SessionNote::tasting, SessionNote::problems})
        if (has_session_note(*source.open.session, note))
            sections.push_back(session_note_section(source, note));
}

void add_page(std::vector<ReportSection>& sections, SessionPrint print, const ReportSource& source) {
    switch (print) {
    case SessionPrint::mash:
        return sections.push_back({"", simple_schedule(source)});
    case SessionPrint::efficiency:
        return sections.push_back(under("", efficiency_section(source)));
    case SessionPrint::water_needed:
        return sections.push_back(
            under("Water Needed For Brewing Session Printout", water_needed_section(source)));
    case SessionPrint::water_match:
        return sections.push_back(
            under("Water Analysis - Regional Matching Printout", water_match_section(source)));
    case SessionPrint::water_adjustment:
        return sections.push_back(
            under("Water Adjustment Detail Printout", water_adjustment_section(source)));
    case SessionPrint::fermentation:
        return sections.push_back(under("", fermentation_section(source)));
    case SessionPrint::bottling:
        return sections.push_back(under("", bottling_section(source)));
    case SessionPrint::notes:
        return add_notes(sections, source);
    }
}

} // namespace

DocumentReport session_page(SessionPrint print, const ReportSource& source) {
    DocumentReport report{"", session_page_title(print), "", ""};
    report.sections.push_back(head(print, source));
    add_page(report.sections, print, source);
    return report;
}

} // namespace wortlex
