// Undo that belongs to a whole window.
#pragma once

#include <QKeySequence>
#include <QObject>

#include <functional>

namespace wortlex {

/// Those of the platform, and Ctrl+Y, which brewers know from elsewhere.
QList<QKeySequence> redo_keys();

/// Undoes and redoes by their keys.
void add_undo_keys(QWidget& window, const std::function<void()>& undo, const std::function<void()>& redo);

/// Makes Ctrl+Y redo in texts, too: all of the program's, as long as it lives.
class RedoKey : public QObject {
public:
    RedoKey();
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// Undo is the window's, also while the cursor stands in a field of one line.
class WindowUndo : public QObject {
public:
    /// Of the fields that `window` has now, which owns it.
    explicit WindowUndo(QWidget& window);
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace wortlex
