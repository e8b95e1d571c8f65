#include "desktop/read_aloud.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QTimer>

#include <utility>

namespace wortlex {
namespace {

constexpr auto role_property = "spoken_role";

QAccessibleInterface* interface_with_role(const QString&, QObject* object) {
    auto* const widget = qobject_cast<QWidget*>(object);
    const auto role = object->property(role_property);
    if (widget == nullptr || !role.isValid()) return nullptr;
    return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt())); // the toolkit owns it
}

class ReaderWatch : public QObject, public QAccessible::ActivationObserver {
public:
    ReaderWatch(QObject& owner, std::function<void(bool)> follow)
        : QObject(&owner), follow_(std::move(follow)) {
        QAccessible::installActivationObserver(this);
        if (QAccessible::isActive()) follow_(true);
    }
    Q_DISABLE_COPY_MOVE(ReaderWatch)
    ~ReaderWatch() override { QAccessible::removeActivationObserver(this); }

    void accessibilityActiveChanged(bool active) override { follow_(active); }

private:
    std::function<void(bool)> follow_;
};

class FocusedCell : public QObject {
public:
    explicit FocusedCell(QAbstractItemView& list) : QObject(&list), list_(list) {
        list.installEventFilter(this);
    }

    // The toolkit tells of the list when the list has heard of its focus; the cell is to be the last word.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::FocusIn && QAccessible::isActive())
            QTimer::singleShot(0, &list_, [this] { tell(); });
        return QObject::eventFilter(watched, event);
    }

private:
    void tell() const {
        const auto current = list_.currentIndex();
        if (!list_.hasFocus() || !current.isValid()) return;
        auto* const table = QAccessible::queryAccessibleInterface(&list_)->tableInterface();
        auto* const cell = table == nullptr ? nullptr : table->cellAt(current.row(), current.column());
        if (cell == nullptr) return;
        QAccessibleEvent event(cell, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }

    QAbstractItemView& list_;
};

} // namespace

void give_role(QWidget& widget, QAccessible::Role role) {
    QAccessible::installFactory(interface_with_role); // which is there once, however often it is asked for
    widget.setProperty(role_property, static_cast<int>(role));
}

void let_reader_reach(QWidget& figure) {
    follow_reader(figure, [&figure, usual = figure.focusPolicy()](bool is_at_work) {
        figure.setFocusPolicy(is_at_work ? Qt::StrongFocus : usual);
    });
}

void follow_reader(QObject& owner, std::function<void(bool is_at_work)> follow) {
    new ReaderWatch(owner, std::move(follow)); // the owner owns it
}

void tell_current_cell(QAbstractItemView& list) {
    new FocusedCell(list); // the list owns it
}

void tell_name(QWidget& widget, const QString& name) {
    if (widget.accessibleName() != name) widget.setAccessibleName(name);
}

void tell_description(QWidget& widget, const QString& description) {
    if (widget.accessibleDescription() != description) widget.setAccessibleDescription(description);
}

} // namespace wortlex
