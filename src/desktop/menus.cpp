#include "desktop/menus.h"

#include "desktop/qt_text.h"
#include "forms/row.h"

namespace wortlex {

QAction& add_action(QMenu& menu, std::string_view caption, int command, const MenuAction& does) {
    menu.setToolTipsVisible(true);
    auto* const action = menu.addAction(string_of(caption));
    action->setObjectName(QString::number(command));
    if (does.key_is_of_button)
        action->setText(action->text() + QLatin1Char('\t') +
                        QKeySequence(does.key).toString(QKeySequence::NativeText));
    else
        action->setShortcuts(does.key);
    action->setEnabled(static_cast<bool>(does.action));
    if (!does.action) action->setToolTip(string_of(not_yet));
    if (does.action) QObject::connect(action, &QAction::triggered, action, does.action);
    return *action;
}

QMenu& add_menu(QMenu& menu, std::string_view caption) {
    return *menu.addMenu(string_of(caption));
}

QMenu& add_menu(QMenuBar& bar, std::string_view caption) {
    return *bar.addMenu(string_of(caption));
}

} // namespace wortlex
