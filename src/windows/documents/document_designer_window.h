// The designer of the live document's complex schedule, of a recipe or a session. It works on the document:
// OK makes one step of all that it changed, Cancel puts everything back, Esc and the closing button ask
// which.
#pragma once

#include "documents/work/session_mash.h"
#include "mash/simple_mash_form.h"
#include "windows/documents/page_ending.h"
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

        bool operator==(const Backup&) const = default;
    };

    DocumentDesignerWindow(const WindowPorts& ports, RecipeEditor& editor, MashDesigner designer,
                           Backup backup, DocumentDesignerCalls calls, QWidget* origin);

    void travel(Travel travel) override;
    void dismiss() override { ending_.close_by(PageEnd::gone); }
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
    void revert();
    bool has_changes() const;

    RecipeEditor& editor_;
    Backup backup_;
    Backup opened_; ///< as the page began with it
    DocumentDesignerCalls calls_;
    SessionMash wort_;       ///< of a session
    std::size_t steps_seen_; ///< of the document's history
    PageEnding ending_;
    bool is_closing_ = false;
};

/// On the live document, which `editor` works on and which must outlive the window.
DocumentDesignerWindow* make_document_designer(const WindowPorts& ports, RecipeEditor& editor,
                                               DocumentDesignerCalls calls, QWidget* origin);

} // namespace wortlex
