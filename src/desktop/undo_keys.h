// Undo that belongs to a whole window.
#pragma once

#include <QObject>

#include <functional>

namespace wortlex {

/// Undoes and redoes by the platform's keys.
void add_undo_keys(QWidget& window, const std::function<void()>& undo, const std::function<void()>& redo);

/// Undo is the window's, also while the cursor stands in a field of one line.
class WindowUndo : public QObject {
public:
    /// Of the fields that `window` has now, which owns it.
    explicit WindowUndo(QWidget& window);
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace wortlex
