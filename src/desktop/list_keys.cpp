#include "desktop/list_keys.h"

#include "desktop/captions.h"

#include <QShortcut>

namespace wortlex {

namespace {

void press_by(QWidget& where, const QKeySequence& key, QWidget& button, Qt::ShortcutContext context) {
    auto* const pressed = qobject_cast<QPushButton*>(&button);
    add_key(*pressed, key);
    auto* const shortcut = new QShortcut(key, &where);
    shortcut->setContext(context);
    QObject::connect(shortcut, &QShortcut::activated, pressed, &QPushButton::click);
}

} // namespace

void press_by_key(QWidget& list, const QKeySequence& key, QWidget& button) {
    press_by(list, key, button, Qt::WidgetShortcut);
}

void press_in_window(QWidget& window, const QKeySequence& key, QWidget& button) {
    press_by(window, key, button, Qt::WindowShortcut);
}

} // namespace wortlex
