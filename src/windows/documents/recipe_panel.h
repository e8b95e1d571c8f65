// The page on which a recipe is formulated: sizes, style, figures, malts and hops, and in a line each what
// lies on the pages beside it. The recipe window is made of it.
#pragma once

#include "desktop/form_widgets.h"
#include "documents/forms/recipe_form.h"
#include "program/window_ports.h"
#include "windows/documents/entry_line.h"

#include <QMenu>

namespace wortlex {

class RecipePanel : public QWidget {
public:
    /// The subject must outlive the panel.
    RecipePanel(const RecipeSubject& subject, const WindowPorts& ports, QWidget* parent);

    const FormWidgets& widgets() const { return widgets_; }
    /// Adds what can be done with a line of the list in use, with its keys.
    void add_line_actions(QMenu& menu);

private:
    /// A list with what stands around it.
    struct ListPart {
        std::string_view list, choice, total;
        EntryLine* entry;
        std::initializer_list<std::string_view> buttons;
    };

    QLayout* name_part();
    QLayout* size_part();
    QWidget* style_part();
    QLayout* figure_part();
    QLayout* list_part(const ListPart& part);
    QLayout* summary_part();

    void add_list_keys(std::string_view list, const std::string& buttons);
    void add_focus_keys();
    void follow_focus();

    Form form_;
    FormWidgets widgets_;
    EntryLine malt_entry_, hop_entry_, yeast_entry_;
    bool hops_in_use_ = false; ///< the list that had the focus last
    QObject alive_;            ///< its end cuts every connection, before the fields go
};

} // namespace wortlex
