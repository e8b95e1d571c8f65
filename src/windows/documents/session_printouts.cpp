#include "windows/documents/session_printouts.h"

#include "program/program.h"
#include "reports/report_writers.h"

namespace wortlex {
namespace {

void show(const WindowPorts& ports, const OpenDocument& open, SessionPrint print) {
    const auto& program = ports.program;
    const auto view = default_report_view(program.settings);
    auto report = session_page(print, {open, view, program.color_table, evaporation_rate(program)});
    const auto title = report.page_title;
    ports.pages.show({.document_name = title,
                      .printer_scale = program.settings.printer_scale,
                      .run = [report = std::move(report)](PageContext& page) { write_print(report, page); }});
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
