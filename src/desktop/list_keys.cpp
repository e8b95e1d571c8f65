#include "desktop/list_keys.h"

#include "desktop/captions.h"

#include <QShortcut>

namespace wortlex {

void press_by_key(QWidget& list, const QKeySequence& key, QWidget& button) {
    auto* const pressed = qobject_cast<QPushButton*>(&button);
    add_key(*pressed, key);
    auto* const shortcut = new QShortcut(key, &list);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, pressed, &QPushButton::click);
}

} // namespace wortlex
