#include "windows/reports/print_options_window.h"

#include "desktop/form_dialog.h"
#include "documents/recipe_gravity.h"
#include "program/export_report.h"
#include "reports/print_options.h"
#include "windows/reports/html_theme_window.h"

#include <QApplication>

namespace wortlex {

bool choose_print_options(const WindowPorts& ports, QWidget* owner) {
    auto& program = ports.program;
    auto selection = program.recipe_print;
    Form form;
    recipe_print_form(
        form, selection, has_mashable_grain(program.document.recipe),
        {.html_themes =
             [&] { edit_html_theme(program, ports.files, ports.prompts, QApplication::activeModalWidget()); },
         .save_as_default =
             [&] { save_as_default(DocumentKind::recipe, selection, program.data_folder, ports.prompts); },
         .help = nullptr});
    form.commit_copy(selection, program.recipe_print);
    return run_dialog(form, {.template_name = "RECIPEPREPRINTDIALOG"}, places(program), owner);
}

} // namespace wortlex
