#include "windows/documents/simple_mash_printout.h"

#include "brewing/mash_water.h"
#include "reports/catalogue.h"
#include "reports/mash_rows.h"
#include "reports/report_writers.h"
#include "reports/sections.h"

namespace wortlex {
namespace {

constexpr const char* title = "Wortlex Recipe - Mash Details Printout";

DocumentReport mash_report(const ReportSource& source) {
    DocumentReport report;
    report.page_title = title;
    report.sections = {heading_section(source), {"", simple_schedule(source)}};
    return report;
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
    return {
        title, settings.printer_scale,
        [report = mash_report({planned, view, colours})](PageContext& page) { write_print(report, page); }};
}

} // namespace wortlex
