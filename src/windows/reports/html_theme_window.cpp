#include "windows/reports/html_theme_window.h"

#include "desktop/form_dialog.h"
#include "reports/html_theme_form.h"

namespace wortlex {

void edit_html_theme(Program& program, Files& files, Prompts& prompts, QWidget* owner) {
    HtmlThemeEditor editor(program.html_theme, {program.folders, program.data_folder, files, prompts});
    Form form;
    html_theme_form(form, editor, program.html_theme);
    run_dialog(form, {.template_name = "HTMLDIALOG"}, places(program), owner);
}

} // namespace wortlex
