// The window in which a recipe is formulated.
#pragma once

#include "desktop/tool_window.h"
#include "documents/work/document_saving.h"
#include "program/program.h"
#include "program/window_ports.h"
#include "windows/calculators/color_swatch_window.h"
#include "windows/documents/recipe_page.h"
#include "windows/documents/recipe_panel.h"
#include "windows/documents/simple_mash_window.h"

#include <QBoxLayout>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>

namespace wortlex {

class RecipeWindow : public ToolWindow {
public:
    /// On the live document, which knows where it comes from.
    RecipeWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);

    /// Shows the live document anew, as after another one was opened.
    void reopen();
    /// A recipe of the other efficiency method.
    void tell_once_shown() override;
    bool keep_work() override;
    ~RecipeWindow() override;

protected:
    bool may_close() override;
    /// The name of the file, and what can be undone.
    void follow(Change change) override;
    /// Undo is the recipe's, also while the cursor stands in a field.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    RecipeActions actions();
    void add_menu();
    void add_edit_menu(QMenuBar& bar);
    QLayout* page_part();

    /// Whether the recipe can be left: no dialog stands open over one of its pages, nothing is left to save.
    bool may_leave_recipe();
    void start_new();
    void open_another();
    bool save_recipe(SaveAs save_as);
    /// The recipe may have been saved, and may have another file than before.
    void follow_save(const std::string& path_before);
    DocumentSaving saving();
    void print();

    void show_name();
    void keep_or_tell();

    void show_colour();
    void add_keys(RecipePage& page);
    void show_page(QPointer<RecipePage>& page, RecipePageUse use);
    void show_yeast_and_water();
    void show_extras();
    void show_mash();
    void close_pages();

    WindowPorts ports_;
    QString caption_;
    Program& program_;
    LiveDocument& document_;
    RecipeEditor editor_;
    DocumentImage saved_;
    RecipeSubject subject_;
    RecipePanel panel_;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    QTimer keeper_; ///< of unsaved work
    // Each is open once at most.
    QPointer<ColorSwatchWindow> swatch_;
    QPointer<RecipePage> yeast_and_water_;
    QPointer<RecipePage> extras_;
    QPointer<SimpleMashWindow> mash_;
    bool is_asking_ = false; ///< whether to save; while it is open the recipe stays
};

} // namespace wortlex
