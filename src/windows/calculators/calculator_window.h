// The window of a calculator that is a form: its rows, OK, and for some Cancel.
#pragma once

#include "desktop/form_dialog.h"
#include "desktop/form_widgets.h"
#include "desktop/tool_window.h"
#include "program/window_ports.h"

namespace wortlex {

class CalculatorWindow : public ToolWindow {
public:
    /// `fill` makes the form; what it binds must last for the run. With Cancel, any other way out than OK is
    /// one.
    enum class Buttons { ok, ok_and_cancel };
    using Fill = std::function<void(Form& form, QWidget& window)>;
    CalculatorWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin, const Fill& fill,
                     Buttons buttons = Buttons::ok);

    /// What a change told brings with it, before all figures are shown again.
    void on_change(std::function<void(Change)> then) { then_ = std::move(then); }

protected:
    void follow(Change change) override {
        if (then_) then_(change);
    }
    void closeEvent(QCloseEvent* event) override;

private:
    void add_buttons(Buttons buttons);

    std::function<void(Change)> then_;
    Form form_;
    FormWidgets widgets_;
    bool is_accepted_ = false;
};

/// Makes the cells of a column equally wide.
void finish_tables(const Form& form, const FormWidgets& widgets);

/// Shows a calculator for a field of `owner` until it is closed; whether with OK.
bool run_calculator(const WindowPorts& ports, QWidget* owner, Form& form, const DialogUse& use);

} // namespace wortlex
