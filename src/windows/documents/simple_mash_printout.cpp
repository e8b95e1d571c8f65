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
PrintRequest simple_mash_printout(const Program& program, const SimpleMashWork& work) {
    const auto& settings = program.settings;
    auto document = program.document;
    auto figures = program.figures;
    document.simple_mash = work.mash;
    figures.mash_grain = work.grain;
    figures.mash.gallons = TotalMashVolume(work.grain, work.mash.dough_in_water, settings.grain_water_volume);
    const auto view = default_report_view(settings);
    const OpenDocument open{document, figures, settings};
    return {title, settings.printer_scale,
            [report = mash_report({open, view, program.color_table})](PageContext& page) {
                write_print(report, page);
            }};
}

} // namespace wortlex
