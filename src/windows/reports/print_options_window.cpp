#include "windows/reports/print_options_window.h"

#include "desktop/form_dialog.h"
#include "program/export_report.h"
#include "reports/competition_dialog.h"
#include "reports/print_options.h"
#include "windows/reports/html_theme_window.h"

#include <QApplication>
#include <QPrinterInfo>

namespace wortlex {
namespace {

bool choose_print_options(const WindowPorts& ports, DocumentKind kind, QWidget* owner) {
    auto& program = ports.program;
    auto& kept = kind == DocumentKind::session ? program.session_print : program.recipe_print;
    auto selection = kept;
    Form form;
    print_options_form(
        form, selection, printed_document(kind, program.document.recipe, program.document.session),
        {.html_themes =
             [&] { edit_html_theme(program, ports.files, ports.prompts, QApplication::activeModalWidget()); },
         .save_as_default = [&] { save_as_default(kind, selection, program.data_folder, ports.prompts); },
         .help = nullptr});
    form.commit_copy(selection, kept);
    const auto* const name = kind == DocumentKind::session ? "BATCHPREPRINTDIALOG" : "RECIPEPREPRINTDIALOG";
    return run_dialog(form, {.template_name = name}, places(program), owner);
}

std::vector<std::string> printer_names() {
    std::vector<std::string> names;
    for (const auto& name : QPrinterInfo::availablePrinterNames()) names.push_back(name.toStdString());
    return names;
}

void show_ruler(const WindowPorts& ports, const LabelDesk& desk) {
    const auto& sheet = desk.choice.run.sheet;
    if (!desk.is_sound()) return;
    ports.pages.show({.document_name = "Ruler Page",
                      .run = [sheet](PageContext& page) { draw_ruler_page(sheet, page); },
                      .sheet = sheet.paper,
                      .shift = shift_by_printer(desk.settings)});
}

void add_help(Form& form) {
    form.rows().button("help", "Help", nullptr);
}

// What is printed asks for its sheet, too.
bool ask_labels(const WindowPorts& ports, ReportForm to, QWidget* owner) {
    auto& program = ports.program;
    auto labels = program.labels;
    LabelDesk desk(labels, program.data_folder, printer_names(), ports.prompts);
    Form form;
    competition_texts_form(form, program.document.competition, ReportOutput::competition_labels);
    if (to == ReportForm::print) label_form(form, desk, [&] { show_ruler(ports, desk); });
    add_help(form);
    form.commit_copy(labels, program.labels);
    return run_dialog(form, {.template_name = "COMP_PREPRINTDIALOG2"}, places(program), owner);
}

bool ask_competition(const WindowPorts& ports, ReportOutput output, ReportForm to, QWidget* owner) {
    if (output == ReportOutput::competition_labels) return ask_labels(ports, to, owner);
    auto& program = ports.program;
    Form form;
    competition_texts_form(form, program.document.competition, output);
    add_help(form);
    return run_dialog(form, {.template_name = "COMP_PREPRINTDIALOG"}, places(program), owner);
}

} // namespace

void print_or_export(const WindowPorts& ports, const RecipeView& view, QWidget* owner, ReportPart part) {
    const auto kind = part == ReportPart::recipe ? DocumentKind::recipe : ports.program.document.kind;
    if (!choose_print_options(ports, kind, owner)) return;
    export_document(
        ports, view,
        [&](ReportOutput output, ReportForm to) { return ask_competition(ports, output, to, owner); }, part);
}

} // namespace wortlex
