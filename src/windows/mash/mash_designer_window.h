// The Mash Designer, a tool of the main window.
#pragma once

#include "windows/mash/designer_window.h"

namespace wortlex {

/// Starts empty at each opening, and asks before an unsaved schedule is dropped.
class MashDesignerWindow : public DesignerWindow {
public:
    MashDesignerWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);

protected:
    bool may_close() override { return may_drop(designer(), desk()); }
    void follow(Change change) override;
    PrintRequest printout() const override;
};

} // namespace wortlex
