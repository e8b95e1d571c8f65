#include "desktop/undo_keys.h"

#include <QAbstractSpinBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QShortcut>

namespace wortlex {
namespace {

bool is_redo(const QKeyEvent& event) {
    return redo_keys().contains(QKeySequence(event.keyCombination()));
}

bool is_text(const QWidget& field) {
    return qobject_cast<const QLineEdit*>(&field) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&field) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&field) != nullptr;
}

} // namespace

QList<QKeySequence> redo_keys() {
    auto keys = QKeySequence::keyBindings(QKeySequence::Redo);
    const QKeySequence usual(Qt::CTRL | Qt::Key_Y);
    if (!keys.contains(usual)) keys << usual;
    return keys;
}

void add_undo_keys(QWidget& window, const std::function<void()>& undo, const std::function<void()>& redo) {
    for (const auto& [keys, action] :
         {std::pair(QKeySequence::keyBindings(QKeySequence::Undo), undo), std::pair(redo_keys(), redo)})
        for (const auto& key : keys)
            QObject::connect(new QShortcut(key, &window), &QShortcut::activated, &window, action);
}

RedoKey::RedoKey() {
    QCoreApplication::instance()->installEventFilter(this);
}

// As if the toolkit's own key were pressed. What does not take that leaves the key to the window.
bool RedoKey::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) return false;
    const auto* const field = qobject_cast<QWidget*>(watched);
    const auto& key = dynamic_cast<QKeyEvent&>(*event);
    if (field == nullptr || !is_text(*field) || key.keyCombination() != (Qt::CTRL | Qt::Key_Y)) return false;
    QKeyEvent redo(event->type(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    redo.ignore();
    QCoreApplication::sendEvent(watched, &redo);
    if (redo.isAccepted()) event->accept();
    return redo.isAccepted();
}

WindowUndo::WindowUndo(QWidget& window) : QObject(&window) {
    for (auto* const field : window.findChildren<QWidget*>())
        if (qobject_cast<QLineEdit*>(field) != nullptr || qobject_cast<QAbstractSpinBox*>(field) != nullptr)
            field->installEventFilter(this);
}

bool WindowUndo::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* const key = dynamic_cast<QKeyEvent*>(event);
        if (key != nullptr && (key->matches(QKeySequence::Undo) || is_redo(*key))) {
            event->ignore();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace wortlex
