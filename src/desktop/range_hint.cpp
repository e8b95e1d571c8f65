#include "desktop/range_hint.h"

#include <QAccessible>
#include <QEvent>
#include <QPainter>

namespace wortlex {
namespace {

constexpr int thickness = 2;

// Readable on the ground that the desktop gives its windows.
QColor warning_colour(const QPalette& palette) {
    const bool is_dark = palette.color(QPalette::Window).lightness() < 128;
    return is_dark ? QColor(0xFF, 0x9E, 0x80) : QColor(0xB0, 0x00, 0x20);
}

} // namespace

RangeHint::RangeHint(QWidget* window) : QWidget(window) {
    setObjectName(QStringLiteral("range_hint"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void RangeHint::tell(QWidget& field, const QString& range) {
    if (!field_.isNull()) field_->removeEventFilter(this);
    field_ = &field;
    field.installEventFilter(this);
    range_ = range;
    setAccessibleName(range);
    place();
    show();
    raise();
    update();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void RangeHint::forget(const QWidget& field) {
    if (field_ == &field) hide();
}

bool RangeHint::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::FocusOut:
    case QEvent::Hide:
        hide();
        break;
    case QEvent::Move:
    case QEvent::Resize:
        place();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

// The words stand below the field; above it where there is no room.
void RangeHint::place() {
    const auto window = parentWidget()->rect();
    frame_ = QRect(field_->mapTo(parentWidget(), QPoint(0, 0)), field_->size())
                 .adjusted(-thickness, -thickness, thickness, thickness);
    words_ = fontMetrics().boundingRect(range_).adjusted(-6, -3, 6, 3);
    words_.moveTopLeft(frame_.bottomLeft());
    if (words_.bottom() > window.bottom()) words_.moveBottom(frame_.top());
    if (words_.right() > window.right()) words_.moveRight(window.right());
    const auto all = frame_.united(words_);
    setGeometry(all);
    const QRegion inside(frame_.adjusted(thickness, thickness, -thickness, -thickness));
    setMask(
        (QRegion(frame_).subtracted(inside) + words_).translated(-all.topLeft())); // the field stays in sight
}

void RangeHint::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.translate(-geometry().topLeft());
    painter.setPen(QPen(warning_colour(palette()), thickness));
    painter.drawRect(frame_.adjusted(1, 1, -1, -1));
    painter.fillRect(words_, palette().window());
    painter.drawRect(words_.adjusted(1, 1, -1, -1));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(words_, Qt::AlignCenter, range_);
}

} // namespace wortlex
