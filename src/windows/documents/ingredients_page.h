// The page on which a session's recipe is changed: the recipe's panel, beside the session's window.
#pragma once

#include "documents/work/session_editor.h"
#include "windows/documents/recipe_actions.h"
#include "windows/documents/recipe_panel.h"

namespace wortlex {

/// Works on the live recipe. Cancel, Esc and the closing button put back what was there as it opened; that is
/// a step, to be undone in the session's window.
class IngredientsPage : public ToolWindow {
public:
    /// `save` is the session's. The pages beside this one are among `pages`.
    IngredientsPage(RecipeEditor& editor, const WindowPorts& ports, OpenPages& pages,
                    const std::function<void()>& save, QWidget* origin);

    void dismiss() override;
    void keep() override { before_ = ingredients_of(editor_.open); }

protected:
    bool may_close() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    RecipeActions actions(const std::function<void()>& save);
    QLayout* page_part();
    QPushButton* set_to_button();
    void save_recipe_as();
    void accept();

    RecipeEditor& editor_;
    WindowPorts ports_;
    OpenPages& pages_;
    Ingredients before_;
    RecipeSubject subject_;
    RecipePanel panel_;
    bool is_done_ = false; ///< there is nothing to be put back
};

} // namespace wortlex
