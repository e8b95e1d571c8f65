// A modal dialog made of a form: its rows above, its buttons below.
#pragma once

#include "desktop/form_widgets.h"
#include "desktop/tool_window.h"

#include <QDialog>
#include <QDialogButtonBox>

namespace wortlex {

struct DialogUse {
    std::string_view template_name;
    std::size_t caption = 0;
    Opener opener = Opener::main;
    bool has_cancel = true;
    bool enter_closes = true; ///< false in a calculator, where it only works out anew
};

/// Disables only its owner. OK and Cancel carry out the form's hooks.
class FormDialog : public QDialog {
public:
    FormDialog(Form& form, const DialogUse& use, const Places& places, QWidget* owner);
    /// Hidden before its widgets go: losing the focus they would still ask the form.
    ~FormDialog() override { hide(); }
    FormWidgets& widgets() { return widgets_; }

    void accept() override;
    void reject() override;
    void setVisible(bool visible) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    Form& form_;
    FormWidgets widgets_;
    WindowPlace& place_;
    QDialogButtonBox* buttons_;
    bool enter_closes_;
};

/// Shows the form until it is closed; whether with OK.
bool run_dialog(Form& form, const DialogUse& use, const Places& places, QWidget* owner);

} // namespace wortlex
