// The designer of the live document's complex schedule, of a recipe or a session. It works on the document:
// OK makes one step of all that it changed, Cancel, Esc and the closing button put everything back.
#pragma once

#include "documents/work/session_mash.h"
#include "mash/simple_mash_form.h"
#include "windows/mash/designer_window.h"

namespace wortlex {

/// What the document's window does for it.
struct DocumentDesignerCalls {
    std::function<void()> save;   ///< the document
    std::function<void()> revert; ///< the simple schedule is to come into force
};

class DocumentDesignerWindow : public DesignerWindow {
public:
    /// What Cancel goes back to.
    struct Backup {
        ComplexMash mash;
        float dough_in_water = 0; ///< quarts
        float water_to_grain = 0; ///< quarts per pound
        MashLog log;              ///< of a session
    };

    DocumentDesignerWindow(const WindowPorts& ports, RecipeEditor& editor, MashDesigner designer,
                           Backup backup, DocumentDesignerCalls calls, QWidget* origin);

    void travel(Travel travel) override;
    void dismiss() override;
    void keep() override;

protected:
    bool may_close() override;
    void follow(Change change) override;
    PrintRequest printout() const override;
    QWidget* added_part() override;

private:
    QPushButton* end_button(const char* name, const QString& caption, const QString& meaning);
    void add_wort(Form& form);
    void take_wort();
    void follow_document();
    void accept();
    void revert();
    void put_back();

    RecipeEditor& editor_;
    Backup backup_;
    DocumentDesignerCalls calls_;
    SessionMash wort_;       ///< of a session
    std::size_t steps_seen_; ///< of the document's history
    bool is_accepted_ = false;
    bool is_dismissed_ = false;
    bool is_closing_ = false;
};

/// On the live document, which `editor` works on and which must outlive the window.
DocumentDesignerWindow* make_document_designer(const WindowPorts& ports, RecipeEditor& editor,
                                               DocumentDesignerCalls calls, QWidget* origin);

} // namespace wortlex
