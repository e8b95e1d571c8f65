#include "windows/reports/print_options_window.h"

#include "desktop/form_dialog.h"
#include "documents/recipe_gravity.h"
#include "program/export_report.h"
#include "reports/competition_dialog.h"
#include "reports/print_options.h"
#include "windows/reports/html_theme_window.h"

#include <QApplication>

namespace wortlex {
namespace {

bool choose_print_options(const WindowPorts& ports, DocumentKind kind, QWidget* owner) {
    auto& program = ports.program;
    auto& kept = kind == DocumentKind::session ? program.session_print : program.recipe_print;
    auto selection = kept;
    Form form;
    print_options_form(
        form, selection, {kind, has_mashable_grain(program.document.recipe)},
        {.html_themes =
             [&] { edit_html_theme(program, ports.files, ports.prompts, QApplication::activeModalWidget()); },
         .save_as_default = [&] { save_as_default(kind, selection, program.data_folder, ports.prompts); },
         .help = nullptr});
    form.commit_copy(selection, kept);
    const auto* const name = kind == DocumentKind::session ? "BATCHPREPRINTDIALOG" : "RECIPEPREPRINTDIALOG";
    return run_dialog(form, {.template_name = name}, places(program), owner);
}

bool ask_competition(Program& program, ReportOutput output, QWidget* owner) {
    Form form;
    competition_texts_form(form, program.document.competition, output);
    const auto* const name =
        output == ReportOutput::competition_form ? "COMP_PREPRINTDIALOG" : "COMP_PREPRINTDIALOG2";
    return run_dialog(form, {.template_name = name}, places(program), owner);
}

} // namespace

void print_or_export(const WindowPorts& ports, const RecipeView& view, QWidget* owner, ReportPart part) {
    const auto kind = part == ReportPart::recipe ? DocumentKind::recipe : ports.program.document.kind;
    if (!choose_print_options(ports, kind, owner)) return;
    export_document(
        ports, view, [&](ReportOutput output) { return ask_competition(ports.program, output, owner); },
        part);
}

} // namespace wortlex
