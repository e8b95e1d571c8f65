// The page on which a session's recipe is changed: the recipe's panel, beside the session's window.
#pragma once

#include "documents/work/session_editor.h"
#include "windows/documents/page_ending.h"
#include "windows/documents/recipe_actions.h"
#include "windows/documents/recipe_panel.h"

namespace wortlex {

/// Works on the live recipe. Cancel puts back what was there as it opened; that is a step, to be undone in
/// the session's window. Esc and the closing button ask which.
class IngredientsPage : public ToolWindow {
public:
    /// `save` is the session's. The pages beside this one are among `pages`.
    IngredientsPage(RecipeEditor& editor, const WindowPorts& ports, OpenPages& pages,
                    const std::function<void()>& save, QWidget* origin);

    void dismiss() override { ending_.close_by(PageEnd::gone); }
    void keep() override;

protected:
    bool may_close() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    RecipeActions actions(const std::function<void()>& save);
    QLayout* page_part();
    QPushButton* set_to_button();
    void save_recipe_as();
    bool has_changes() const;

    RecipeEditor& editor_;
    WindowPorts ports_;
    OpenPages& pages_;
    Ingredients before_;
    BrewDocument opened_; ///< the recipe as the page began with it
    RecipeSubject subject_;
    RecipePanel panel_;
    PageEnding ending_;
};

} // namespace wortlex
