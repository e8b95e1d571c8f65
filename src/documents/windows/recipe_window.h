// The window in which a recipe is formulated.
#pragma once

#include "base/ports/prompts.h"
#include "calculators/windows/color_swatch_window.h"
#include "desktop/form_widgets.h"
#include "desktop/tool_window.h"
#include "documents/recipe_form.h"
#include "frame/program.h"

#include <QPointer>

namespace wortlex {

/// What the window asks of the rest of the program.
struct RecipeWindowPorts {
    Files& files;
    Prompts& prompts;
};

class RecipeWindow : public ToolWindow {
public:
    /// On the live document, which `program.recipe_file` tells the origin of.
    RecipeWindow(Program& program, const RecipeWindowPorts& ports, QWidget* origin);

    /// Shows the live document anew, as after another one was opened.
    void reopen();
    /// What is left to tell once the window stands: a recipe of the other efficiency method.
    void tell_method();
    ~RecipeWindow() override;

private:
    void add_menu();
    QLayout* recipe_part();
    QLayout* size_part();
    QWidget* style_part();
    QWidget* figure_part();
    QLayout* list_part(std::string_view list, std::string_view choice, std::string_view total,
                       std::initializer_list<std::string_view> buttons);
    QLayout* page_part();
    void open_another();
    void show_file_name();
    void show_colour();

    Program& program_;
    RecipeWindowPorts ports_;
    RecipeView view_;
    DocumentSnapshot saved_;
    RecipeSubject subject_;
    Form form_;
    FormWidgets widgets_;
    QPointer<ColorSwatchWindow> swatch_; ///< open once at most
};

} // namespace wortlex
