#include "desktop/range_hint.h"

#include "desktop/colours.h"
#include "desktop/read_aloud.h"

#include <QAccessible>
#include <QEvent>
#include <QLabel>
#include <QPainter>

#include <algorithm>
#include <chrono>
#include <limits>

namespace wortlex {
namespace {

constexpr int thickness = 2;
constexpr std::chrono::seconds time_to_read{3};

} // namespace

RangeHint::RangeHint(QWidget* window) : QWidget(window) {
    setObjectName(QStringLiteral("range_hint"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    moment_.setSingleShot(true);
    connect(&moment_, &QTimer::timeout, this, &QWidget::hide);
    hide();
}

void RangeHint::tell(QWidget& field, const QString& range) {
    if (!field_.isNull()) field_->removeEventFilter(this);
    field_ = &field;
    moment_.stop();
    field.installEventFilter(this);
    range_ = range;
    setAccessibleName(range);
    tell_description(field, QStringLiteral("Out of range: ") + range);
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

void RangeHint::leave(const QWidget& field) {
    if (field_ == &field) moment_.start(time_to_read);
}

bool RangeHint::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::FocusOut:
        leave(*field_);
        break;
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

void RangeHint::place() {
    frame_ = QRect(field_->mapTo(parentWidget(), QPoint(0, 0)), field_->size())
                 .adjusted(-thickness, -thickness, thickness, thickness);
    words_ = place_of_words(fontMetrics().boundingRect(range_).adjusted(-6, -3, 6, 3));
    const auto all = frame_.united(words_);
    setGeometry(all);
    const QRegion inside(frame_.adjusted(thickness, thickness, -thickness, -thickness));
    setMask(
        (QRegion(frame_).subtracted(inside) + words_).translated(-all.topLeft())); // the field stays in sight
}

// Beside, above or below the field: where the words hide least.
QRect RangeHint::place_of_words(QRect words) const {
    const auto window = parentWidget()->rect();
    const auto at = [&](int left, int top) {
        words.moveTopLeft(
            {std::clamp(left, window.left(), std::max(window.left(), window.right() - words.width())), top});
        return words;
    };
    const int middle = frame_.center().y() - words.height() / 2, above = frame_.top() - words.height();
    QRect best;
    auto least = std::numeric_limits<int>::max();
    for (const auto& place :
         {at(frame_.right() + 1, middle), at(frame_.left() - words.width(), middle), at(frame_.left(), above),
          at(frame_.right() - words.width(), above), at(frame_.left(), frame_.bottom() + 1),
          at(frame_.right() - words.width(), frame_.bottom() + 1)}) {
        const bool fits = window.contains(place) && !place.intersects(frame_);
        const int hidden = fits ? hidden_by(place) : std::numeric_limits<int>::max() - 1;
        if (hidden >= least) continue;
        least = hidden;
        best = place;
    }
    return best;
}

// Pixels of the window's widgets below a place; what can be typed or pressed counts more than words.
int RangeHint::hidden_by(const QRect& place) const {
    constexpr int weight_of_field = 8;
    int hidden = 0;
    for (const auto* const widget : parentWidget()->findChildren<QWidget*>()) {
        const auto* const label = qobject_cast<const QLabel*>(widget);
        const bool is_field = widget->focusPolicy() != Qt::NoFocus;
        if (!widget->isVisible() || (!is_field && (label == nullptr || label->text().isEmpty()))) continue;
        const auto shared = place.intersected({widget->mapTo(parentWidget(), QPoint(0, 0)), widget->size()});
        hidden += shared.width() * shared.height() * (is_field ? weight_of_field : 1);
    }
    return hidden;
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
