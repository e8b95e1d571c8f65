#include "desktop/undo_keys.h"

#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>

namespace wortlex {

void add_undo_keys(QWidget& window, const std::function<void()>& undo, const std::function<void()>& redo) {
    for (const auto& [key, action] :
         {std::pair(QKeySequence::Undo, undo), std::pair(QKeySequence::Redo, redo)})
        for (const auto& sequence : QKeySequence::keyBindings(key))
            QObject::connect(new QShortcut(sequence, &window), &QShortcut::activated, &window, action);
}

WindowUndo::WindowUndo(QWidget& window) : QObject(&window) {
    for (auto* const field : window.findChildren<QWidget*>())
        if (qobject_cast<QLineEdit*>(field) != nullptr || qobject_cast<QAbstractSpinBox*>(field) != nullptr)
            field->installEventFilter(this);
}

bool WindowUndo::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* const key = dynamic_cast<QKeyEvent*>(event);
        if (key != nullptr && (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo))) {
            event->ignore();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace wortlex
