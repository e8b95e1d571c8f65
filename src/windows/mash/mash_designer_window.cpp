#include "windows/mash/mash_designer_window.h"

#include "desktop/list_keys.h"
#include "mash/mash_designer_printout.h"
#include "program/program.h"

namespace wortlex {

MashDesignerWindow::MashDesignerWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin)
    : DesignerWindow(ports, info, Opener::main, origin, free_designer(ports.program.settings)) {
    designer().owner.told = [&board = ports.program.notices](const MashDesign&, float) {
        board.tell(Change::mash);
    };
    begin(nullptr, nullptr);
    press_in_window(*this, QKeySequence::Save, widgets().field("save"));
    buttons().addWidget(closing_ok(tr("&OK"), tr("Closes the designer, after asking for unsaved changes")));
}

void MashDesignerWindow::follow(Change change) {
    if (change == Change::settings) follow_settings(designer(), ports().program.settings);
}

void MashDesignerWindow::tell_once_shown() {
    offer_kept_schedule(designer(), ports().program.data_folder, ports().prompts);
    widgets().refresh();
}

bool MashDesignerWindow::may_close() {
    if (!may_drop(designer(), desk())) return false;
    forget_kept_schedule(ports().program.data_folder);
    return true;
}

bool MashDesignerWindow::keep_work() {
    return keep_schedule(designer(), ports().program.data_folder);
}

PrintRequest MashDesignerWindow::printout() const {
    return mash_designer_printout(designer());
}

} // namespace wortlex
