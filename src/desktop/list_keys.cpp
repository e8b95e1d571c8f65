#include "desktop/list_keys.h"

#include <QShortcut>

namespace wortlex {

void press_by_key(QWidget& list, const QKeySequence& key, const QWidget& button) {
    auto* const shortcut = new QShortcut(key, &list);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, qobject_cast<const QPushButton*>(&button),
                     &QPushButton::click);
}

} // namespace wortlex
