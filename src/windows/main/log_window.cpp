#include "windows/main/log_window.h"

#include "desktop/form_dialog.h"
#include "program/fault_log.h"

#include <QScreen>

namespace wortlex {

void show_log(Clipboard& clipboard, const Places& places, QWidget* owner) {
    const auto log = user_log();
    Form form;
    log_form(form, log, clipboard);
    FormDialog dialog(form, {.template_name = "LOGDIALOG", .has_cancel = false}, places, owner);
    auto& text = dialog.widgets().field("log");
    const auto room = dialog.screen()->availableSize();
    const QSize wished(text.fontMetrics().averageCharWidth() * 90, text.fontMetrics().lineSpacing() * 16);
    text.setMinimumSize(wished.boundedTo({room.width() * 3 / 5, room.height() / 2}));
    // Told before it has its place, or it would grow there beyond the screen's edge.
    const auto letters = dialog.fontMetrics();
    dialog.resize(text.minimumSize() + QSize(letters.averageCharWidth() * 20, letters.height() * 6));
    dialog.exec();
    form.show_again = nullptr;
}

} // namespace wortlex
