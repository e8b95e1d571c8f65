// The base of the windows that stay open beside each other.
#pragma once

#include "desktop/placement.h"

#include <QPushButton>

#include <functional>
#include <optional>

namespace wortlex {

/// Applies a window's row of the table: name, caption by use, place by opener. The place is the window's to
/// put.
WindowPlace& dress_window(QWidget& window, const WindowInfo& info, std::size_t use, Opener opener,
                          QWidget* origin, const Places& places);

/// Brings the modal dialog that a window has open to the front; false if it has none.
bool show_modal_child(const QWidget& window);

/// Shows, raises and focuses a window, from its icon too.
void bring_forward(QWidget& window);

/// The two ways through what was done.
enum class Travel { undo, redo };

/// Modeless and without an owner, so that it can lie behind the main window. Deleted when closed.
class ToolWindow : public QWidget {
public:
    ToolWindow(const WindowInfo& info, std::size_t use, Opener opener, QWidget* origin, const Places& places);
    void setVisible(bool visible) override;

    /// What is left to tell the user once the window stands.
    virtual void tell_once_shown() {}

    /// Keeps unsaved work for a run that breaks off, without a word; false if it could not be written.
    virtual bool keep_work() { return true; }

    /// Whether it has changes of its own that its OK would hand over, and that OK.
    virtual bool holds_changes() const { return false; }
    virtual void hand_over() {}

    /// Whether it has steps of its own to undo or redo, which come before those of what it works on.
    virtual bool can_travel(Travel) const { return false; }
    virtual void travel(Travel) {}

    /// What it works on is gone: it closes without a word.
    virtual void dismiss() { close(); }
    /// What it works on was saved as it stands: Cancel no longer goes behind that.
    virtual void keep() {}

    std::function<void()> closed; ///< told once, when it is gone from the screen

protected:
    /// A change was told. The rows of the window's forms follow by themselves, after this.
    virtual void follow(Change) {}
    /// Whether nothing stands against closing; asks the user where there is unsaved work.
    virtual bool may_close() { return true; }
    void closeEvent(QCloseEvent* event) override;
    /// Where it comes up as long as no place is remembered; centred on its origin if it does not care.
    virtual std::optional<Rectangle> first_place() const { return std::nullopt; }
    /// Enter presses the button that has the focus; a field keeps it to itself.
    void keyPressEvent(QKeyEvent* event) override;

    void close_by_escape();
    /// An OK that closes, as Esc does.
    QPushButton* closing_ok(const QString& caption, const QString& meaning = {});

private:
    WindowPlace& place_;
    Listening listening_;
};

} // namespace wortlex
