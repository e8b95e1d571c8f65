#include "windows/documents/simple_mash_printout.h"

#include "brewing/mash_water.h"
#include "reports/catalogue.h"
#include "reports/file_names.h"
#include "reports/mash_rows.h"
#include "reports/report_writers.h"
#include "reports/row_parts.h"
#include "reports/sections.h"

namespace wortlex {
namespace {

constexpr const char* recipe_title = "Wortlex Recipe - Mash Details Printout";
constexpr const char* session_title = "Wortlex Brewing Session - Mash Details Printout";

PrintRequest mash_page(const char* title, std::vector<ReportSection> sections, const OpenDocument& open) {
    DocumentReport report;
    report.page_title = title;
    report.sections = std::move(sections);
    return {title, open.settings.printer_scale,
            [report = std::move(report)](PageContext& page) { write_print(report, page); },
            part_pages_name(line_text(open.document.title), mash_pages_name)};
}

} // namespace

// The rows of the full report, on a copy of the recipe that has the schedule under work.
PrintRequest simple_mash_printout(const OpenDocument& open, const ColorTable& colours,
                                  const SimpleMashWork& work) {
    const auto& settings = open.settings;
    auto document = open.document;
    auto figures = open.figures;
    document.simple_mash = work.mash;
    figures.mash_grain = work.grain;
    figures.mash.gallons = TotalMashVolume(work.grain, work.mash.dough_in_water, settings.grain_water_volume);
    const auto view = default_report_view(settings);
    const OpenDocument planned{document, figures, settings};
    const ReportSource source{planned, view, colours};
    return mash_page(recipe_title, {heading_section(source), {"", simple_schedule(source)}}, open);
}

PrintRequest complex_mash_printout(const OpenDocument& open, const ColorTable& colours) {
    const auto view = default_report_view(open.settings);
    const char* const title = open.session == nullptr ? recipe_title : session_title;
    return mash_page(title, {{"", complex_schedule({open, view, colours})}}, open);
}

} // namespace wortlex
