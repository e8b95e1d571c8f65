// The window of the mash designer, in all its forms: the list of steps, the selected one beside it, the
// amounts below.
#pragma once

#include "desktop/form_widgets.h"
#include "desktop/tool_window.h"
#include "mash/mash_designer_form.h"
#include "mash/schedule_storing.h"
#include "program/window_ports.h"

#include <QBoxLayout>
#include <QPushButton>

#include <optional>

namespace wortlex {

class DesignerWindow : public ToolWindow {
public:
    bool can_travel(Travel travel) const override;
    void travel(Travel travel) override;

protected:
    DesignerWindow(const WindowPorts& ports, const WindowInfo& info, Opener opener, QWidget* origin,
                   MashDesigner designer);

    /// To be called once the window stands behind it: makes its form and its fields. `add` adds to the form.
    void begin(const std::function<void(Form& form)>& add, std::function<void()> revert);
    virtual PrintRequest printout() const = 0;
    /// What stands below the selected step; nothing as it is.
    virtual QWidget* added_part() { return nullptr; }

    const WindowPorts& ports() const { return ports_; }
    MashDesigner& designer() { return designer_; }
    const MashDesigner& designer() const { return designer_; }
    ScheduleDesk desk() const;
    FormWidgets& widgets() { return *widgets_; }
    Form& form() { return form_; }
    QHBoxLayout& buttons() { return *buttons_; }

private:
    DesignerActions actions(std::function<void()> revert);
    std::optional<StepNaming> ask_naming(StepNaming naming, bool is_first);
    void enter_step();
    void lay_out_rows();
    QLayout* list_part();
    QLayout* step_part();
    QLayout* mash_part();

    WindowPorts ports_;
    MashDesigner designer_;
    Form form_;
    std::optional<FormWidgets> widgets_;
    QHBoxLayout* buttons_ = nullptr;
};

} // namespace wortlex
