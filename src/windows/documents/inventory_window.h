// What a session's ingredients find in stock.
#pragma once

#include "desktop/form_widgets.h"
#include "desktop/tool_window.h"
#include "documents/forms/inventory_form.h"
#include "program/window_ports.h"

namespace wortlex {

class ListView;

/// A page of the session's window: modeless, only to read. It follows the session and the databases.
class InventoryWindow : public ToolWindow {
public:
    /// On the live session.
    InventoryWindow(const WindowPorts& ports, QWidget* origin);

protected:
    void follow(Change change) override;

private:
    /// Reads the databases.
    InventoryView fresh_view();
    InventoryView current_view() const;
    Form made_form();
    void print() const;
    void fit_list(const ListView& list);

    WindowPorts ports_;
    Stocks stocks_;
    std::vector<std::string> faults_;
    InventoryView view_;
    Form form_;
    FormWidgets widgets_;
};

} // namespace wortlex
