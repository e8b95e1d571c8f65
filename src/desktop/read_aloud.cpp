#include "desktop/read_aloud.h"

#include <QAccessibleWidget>

namespace wortlex {
namespace {

constexpr auto role_property = "spoken_role";

QAccessibleInterface* interface_with_role(const QString&, QObject* object) {
    auto* const widget = qobject_cast<QWidget*>(object);
    const auto role = object->property(role_property);
    if (widget == nullptr || !role.isValid()) return nullptr;
    return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt())); // the toolkit owns it
}

// As long as a reader is at work.
class FigureReach : public QObject, public QAccessible::ActivationObserver {
public:
    explicit FigureReach(QWidget& figure) : QObject(&figure), figure_(figure), usual_(figure.focusPolicy()) {
        QAccessible::installActivationObserver(this);
        if (QAccessible::isActive()) accessibilityActiveChanged(true);
    }
    Q_DISABLE_COPY_MOVE(FigureReach)
    ~FigureReach() override { QAccessible::removeActivationObserver(this); }

    void accessibilityActiveChanged(bool active) override {
        figure_.setFocusPolicy(active ? Qt::StrongFocus : usual_);
    }

private:
    QWidget& figure_;
    Qt::FocusPolicy usual_;
};

} // namespace

void give_role(QWidget& widget, QAccessible::Role role) {
    QAccessible::installFactory(interface_with_role); // which is there once, however often it is asked for
    widget.setProperty(role_property, static_cast<int>(role));
}

void let_reader_reach(QWidget& figure) {
    new FigureReach(figure); // the figure owns it
}

void tell_name(QWidget& widget, const QString& name) {
    if (widget.accessibleName() != name) widget.setAccessibleName(name);
}

void tell_description(QWidget& widget, const QString& description) {
    if (widget.accessibleDescription() != description) widget.setAccessibleDescription(description);
}

} // namespace wortlex
