// A page beside the recipe window, for what does not fit on it. It works on the live recipe: OK makes one
// step of all that it changed, Cancel, Esc and the closing button put everything back.
#pragma once

#include "desktop/form_widgets.h"
#include "desktop/tool_window.h"
#include "documents/work/recipe_editor.h"

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
    RecipePage(RecipeEditor& editor, RecipePageUse use, const Places& places, QWidget* origin);

    void dismiss() override;
    void keep() override { form_.keep(); }

protected:
    void follow(Change change) override;
    bool may_close() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    Form made_form();
    void lay_out_rows();
    void accept();
    void press_enter();

    RecipeEditor& editor_;
    RecipePageUse use_;
    Form form_;
    FormWidgets widgets_;
    bool is_accepted_ = false;
    bool is_dismissed_ = false;
};

/// The arrangement of the extras page: its list takes the room.
QLayout* arrange_extras(const FormWidgets& widgets);

} // namespace wortlex
