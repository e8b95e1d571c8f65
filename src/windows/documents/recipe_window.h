// The window in which a recipe is formulated.
#pragma once

#include "windows/documents/document_window.h"
#include "windows/documents/recipe_panel.h"

#include <QBoxLayout>

namespace wortlex {

class RecipeWindow : public DocumentWindow {
public:
    RecipeWindow(const WindowPorts& given, const WindowInfo& info, QWidget* origin);

protected:
    Opened open_live() override;
    QWidget& first_field() const override { return panel_.widgets().field("title"); }
    void make_new() override { new_recipe(program()); }
    void show_simple_mash() override;

private:
    RecipeActions actions();
    QLayout* page_part();
    void add_set_to(QMenu& menu);
    void print();

    RecipeSubject subject_;
    RecipePanel panel_;
};

} // namespace wortlex
