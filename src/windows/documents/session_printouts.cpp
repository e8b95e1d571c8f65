#include "windows/documents/session_printouts.h"

#include "program/program.h"
#include "reports/file_names.h"
#include "reports/report_writers.h"
#include "reports/row_parts.h"

namespace wortlex {
namespace {

std::string_view part_name(SessionPrint print) {
    switch (print) {
    case SessionPrint::mash:
        return mash_pages_name;
    case SessionPrint::efficiency:
        return "Efficiency";
    case SessionPrint::water_needed:
        return "Water Needed";
    case SessionPrint::water_match:
        return "Water Profile";
    case SessionPrint::water_adjustment:
        return "Water Adjustment";
    case SessionPrint::fermentation:
        return "Fermentation";
    case SessionPrint::bottling:
        return "Bottling";
    case SessionPrint::notes:
        break;
    }
    return "Notes";
}

void show(const WindowPorts& ports, const OpenDocument& open, SessionPrint print) {
    const auto& program = ports.program;
    const auto view = default_report_view(program.settings);
    auto report = session_page(print, {open, view, program.color_table, evaporation_rate(program)});
    const auto title = report.page_title;
    ports.pages.show({.document_name = title,
                      .printer_scale = program.settings.printer_scale,
                      .run = [report = std::move(report)](PageContext& page) { write_print(report, page); },
                      .file_name = part_pages_name(line_text(open.document.title), part_name(print))});
}

} // namespace

void print_session_page(const WindowPorts& ports, SessionPrint print) {
    show(ports, live_document(ports.program), print);
}

// On a copy of the session that has the schedule.
void print_session_mash(const WindowPorts& ports, const SimpleMashWork& work) {
    auto copy = ports.program.document;
    copy.recipe.simple_mash = work.mash;
    copy.session.infusions = work.session.infusions;
    copy.session.runnings_sg = work.session.runnings.sg;
    const auto open = view_of(copy, ports.program.settings);
    mash_refresh(open);
    show(ports, open, SessionPrint::mash);
}

} // namespace wortlex
