// The window of a brewing session: what the recipe aims at beside what was measured, and the way to the
// pages.
#pragma once

#include "documents/forms/session_form.h"
#include "windows/documents/document_window.h"
#include "windows/documents/recipe_actions.h"
#include "windows/documents/recipe_page.h"
#include "windows/documents/session_panel.h"

namespace wortlex {

class SessionWindow : public DocumentWindow {
public:
    SessionWindow(const WindowPorts& given, const WindowInfo& info, QWidget* origin);

protected:
    Opened open_live() override;
    void make_new() override;
    /// What comes next: the recipe to brew, or its page.
    QWidget& first_field() const override;
    void show_simple_mash() override;
    /// Whether its stock is booked.
    QString state_words() const override;
    void follow(Change change) override;

private:
    SessionActions actions();
    QLayout* bottom_part();
    RecipeSide side();
    void open_page(const RecipePageUse& page);
    void pick_date();
    void pick_recipe();
    void show_ingredients();
    void print();

    SessionSubject subject_;
    SessionPanel panel_;
};

} // namespace wortlex
