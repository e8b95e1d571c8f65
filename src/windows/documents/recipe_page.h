// A page beside the recipe window, for what does not fit on it. It works on the live recipe: OK makes one
// step of all that it changed, Cancel puts everything back, Esc and the closing button ask which.
#pragma once

#include "desktop/form_widgets.h"
#include "desktop/tool_window.h"
#include "documents/work/recipe_editor.h"
#include "program/window_ports.h"
#include "windows/documents/page_ending.h"

namespace wortlex {

/// How a page is made. The step is what undoing it is called.
struct RecipePageUse {
    std::string_view template_name;
    std::string step;
    Opener opener = Opener::recipe;
    std::function<void(Form& form, QWidget* page)> fill;
    std::function<QLayout*(const FormWidgets& widgets)> arrange = nullptr; ///< empty: as forms are laid out
    std::function<void()> follow = nullptr; ///< the document changed, the rows are not yet shown anew
};

class RecipePage : public ToolWindow {
public:
    RecipePage(RecipeEditor& editor, RecipePageUse use, const WindowPorts& ports, QWidget* origin);

    void dismiss() override { ending_.close_by(PageEnd::gone); }
    void keep() override { form_.keep(); }

protected:
    void follow(Change change) override;
    bool may_close() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    Form made_form();
    void lay_out_rows();

    RecipeEditor& editor_;
    RecipePageUse use_;
    Form form_;
    FormWidgets widgets_;
    PageEnding ending_;
};

/// The arrangement of the extras page: its list takes the room.
QLayout* arrange_extras(const FormWidgets& widgets);

} // namespace wortlex
