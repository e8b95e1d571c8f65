#include "windows/main/log_window.h"

#include "desktop/form_dialog.h"
#include "program/fault_log.h"

namespace wortlex {

void show_log(Clipboard& clipboard, const Places& places, QWidget* owner) {
    const auto log = user_log();
    Form form;
    log_form(form, log, clipboard);
    FormDialog dialog(form, {.template_name = "LOGDIALOG", .has_cancel = false}, places, owner);
    auto& text = dialog.widgets().field("log");
    text.setMinimumSize(text.fontMetrics().averageCharWidth() * 90, text.fontMetrics().lineSpacing() * 16);
    dialog.exec();
    form.show_again = nullptr;
}

} // namespace wortlex
