// The window of a document of either kind: its file, its menu, undo, the copy of unsaved work, its pages.
#pragma once

#include "desktop/tool_window.h"
#include "documents/work/document_saving.h"
#include "program/program.h"
#include "program/window_ports.h"
#include "windows/documents/open_pages.h"

#include <QMenuBar>
#include <QPushButton>
#include <QTimer>

namespace wortlex {

class DocumentWindow : public ToolWindow {
public:
    /// On the live document, which knows where it comes from.
    DocumentWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin);

    /// A document of the other efficiency method.
    void tell_once_shown() override;
    bool keep_work() override;
    ~DocumentWindow() override { pages_.dismiss(); }

protected:
    /// To be called once the window has its fields.
    void begin(std::function<void()> print_it);
    /// What a save is asked against, and how the document is shown at first.
    struct Opened {
        DocumentImage saved;
        RecipeView view;
    };
    /// The order of work as it opens on the live document.
    virtual Opened open_live() = 0;
    /// Where a brewer begins on a document that was made or opened.
    virtual QWidget& first_field() const = 0;
    /// Makes the live document a new one.
    virtual void make_new() = 0;
    /// Follows the name of the file in the caption.
    virtual QString state_words() const { return {}; }

    bool may_close() override;
    /// The name of the file, and what can be undone.
    void follow(Change change) override;

    void save_document(SaveAs save_as);
    /// The schedule that is in force.
    void show_mash();
    virtual void show_simple_mash() = 0;
    /// The mash goes by that schedule from now on, which is shown; the water tells its ratio anew.
    void revert_to(ScheduleKind kind);
    /// Saves in a way of its own, which answers whether the document is saved now.
    void save_by(const std::function<bool(DocumentSaving&)>& way);
    QAction* action(int command) const;
    /// Closes the window.
    QPushButton* ok_button(const char* meaning);
    const WindowPorts& ports() const { return ports_; }
    Program& program() const { return ports_.program; }
    LiveDocument& document() const { return document_; }
    RecipeEditor& editor() { return editor_; }
    OpenPages& pages() { return pages_; }

private:
    void add_menu(std::function<void()> print_it);
    void add_edit_menu(QMenuBar& bar);
    /// Shows the live document anew, as after another one was opened.
    void reopen();
    /// Whether the document can be left: no dialog stands open over one of its pages, nothing is left to
    /// save.
    bool may_leave_document();
    void start_new();
    void open_another();
    /// The document may have been saved, and may have another file than before.
    void follow_save(const std::string& path_before);
    DocumentSaving saving();
    void travel(Travel travel) override;
    void show_designer();
    void show_name();
    void keep_or_tell();

    WindowPorts ports_;
    QString caption_;
    LiveDocument& document_;
    RecipeEditor editor_;
    DocumentImage saved_;
    OpenPages pages_;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    QTimer keeper_;          ///< of unsaved work
    QTimer first_keep_;      ///< of what has no copy yet
    bool has_copy_ = false;  ///< of its unsaved work, however old
    bool is_asking_ = false; ///< whether to save; while it is open the document stays
};

} // namespace wortlex
