// The Mash Designer, a tool of the main window.
#pragma once

#include "windows/mash/designer_window.h"

namespace wortlex {

/// Starts empty at each opening, and asks before an unsaved schedule is dropped.
class MashDesignerWindow : public DesignerWindow {
public:
    MashDesignerWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);

    /// Offers what an earlier run left.
    void tell_once_shown() override;
    bool keep_work() override;

protected:
    bool may_close() override;
    void follow(Change change) override;
    PrintRequest printout() const override;
};

} // namespace wortlex
