// The page on which a recipe is formulated: sizes, style, figures, malts and hops. The recipe window is made
// of it.
#pragma once

#include "desktop/form_widgets.h"
#include "documents/forms/recipe_form.h"

namespace wortlex {

class RecipePanel : public QWidget {
public:
    /// The subject must outlive the panel.
    RecipePanel(const RecipeSubject& subject, const Places& places, QWidget* parent);

    const FormWidgets& widgets() const { return widgets_; }

private:
    QLayout* name_part();
    QLayout* size_part();
    QWidget* style_part();
    QWidget* figure_part();
    QLayout* list_part(std::string_view list, std::string_view choice, std::string_view total,
                       std::initializer_list<std::string_view> buttons);

    void add_list_keys(std::string_view list, const std::string& buttons);

    Form form_;
    FormWidgets widgets_;
};

} // namespace wortlex
