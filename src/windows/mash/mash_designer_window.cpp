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

PrintRequest MashDesignerWindow::printout() const {
    return mash_designer_printout(designer());
}

} // namespace wortlex
