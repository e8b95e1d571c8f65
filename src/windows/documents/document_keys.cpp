#include "windows/documents/document_keys.h"

#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>

namespace wortlex {

void add_document_keys(QWidget& window, RecipeEditor& editor, const std::function<void()>& save) {
    const auto add = [&](QKeySequence::StandardKey key, const std::function<void()>& action) {
        for (const auto& sequence : QKeySequence::keyBindings(key))
            QObject::connect(new QShortcut(sequence, &window), &QShortcut::activated, &window, action);
    };
    add(QKeySequence::Save, save);
    add(QKeySequence::Undo, [&editor] { undo(editor); });
    add(QKeySequence::Redo, [&editor] { redo(editor); });
}

DocumentUndo::DocumentUndo(QWidget& window) : QObject(&window) {
    for (auto* const field : window.findChildren<QWidget*>())
        if (qobject_cast<QLineEdit*>(field) != nullptr || qobject_cast<QAbstractSpinBox*>(field) != nullptr)
            field->installEventFilter(this);
}

bool DocumentUndo::eventFilter(QObject* watched, QEvent* event) {
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
