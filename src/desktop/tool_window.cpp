#include "desktop/tool_window.h"

#include "desktop/captions.h"
#include "desktop/help_keys.h"
#include "desktop/qt_text.h"
#include "desktop/read_aloud.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QFocusEvent>
#include <QShortcut>

#include <algorithm>
#include <utility>

namespace wortlex {

WindowPlace& dress_window(QWidget& window, const WindowInfo& info, std::size_t use, Opener opener,
                          QWidget* origin, const Places& places) {
    const bool is_plain = window.metaObject() == &QWidget::staticMetaObject;
    if (is_plain) give_role(window, QAccessible::Window); // as dialogs have theirs
    window.setObjectName(string_of(info.template_name));
    window.setWindowTitle(string_of(info.captions.at(use)));
    set_help_page(window, info.help_page);
    const auto place = info.places_by_use ? use : static_cast<std::size_t>(opener);
    return *new WindowPlace(window, origin, info.places.at(place), places); // the window owns it
}

bool show_modal_child(const QWidget& window) {
    const auto children = window.findChildren<QDialog*>();
    const auto open = std::find_if(children.begin(), children.end(), [](const QDialog* child) {
        return child->isVisible() && child->isModal();
    });
    if (open == children.end()) return false;
    if (!show_modal_child(**open)) bring_forward(**open);
    return true;
}

void bring_forward(QWidget& window) {
    if (window.isMinimized()) window.showNormal();
    window.show();
    window.raise();
    window.activateWindow();
    if (window.focusWidget() == nullptr) window.setFocus();
}

ToolWindow::ToolWindow(const WindowInfo& info, std::size_t use, Opener opener, QWidget* origin,
                       const Places& places)
    : place_(dress_window(*this, info, use, opener, origin, places)),
      listening_(places.notices.listen([this](Change change) { follow(change); })) {
    setAttribute(Qt::WA_DeleteOnClose);
}

void ToolWindow::setVisible(bool visible) {
    if (visible) place_.put(first_place());
    QWidget::setVisible(visible);
    if (!visible || focusWidget() == nullptr) return;
    QFocusEvent entered(QEvent::FocusIn, Qt::TabFocusReason); // as a dialog does: a field selects its text
    QApplication::sendEvent(focusWidget(), &entered);
}

void ToolWindow::close_by_escape() {
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QWidget::close);
}

QPushButton* ToolWindow::closing_ok(const QString& caption, const QString& meaning) {
    auto* const ok = new QPushButton(caption, this);
    ok->setObjectName(QStringLiteral("ok"));
    set_tip(*ok, meaning);
    add_key(*ok, QKeySequence::Cancel);
    connect(ok, &QPushButton::clicked, this, &QWidget::close);
    return ok;
}

void ToolWindow::keyPressEvent(QKeyEvent* event) {
    const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* const button = is_enter ? qobject_cast<QPushButton*>(focusWidget()) : nullptr;
    button != nullptr ? button->click() : QWidget::keyPressEvent(event);
}

void ToolWindow::closeEvent(QCloseEvent* event) {
    if (show_modal_child(*this) || !may_close()) {
        event->ignore();
        return;
    }
    event->accept();
    if (closed) std::exchange(closed, nullptr)();
}

} // namespace wortlex
