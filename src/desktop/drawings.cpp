#include "desktop/drawings.h"

#include "desktop/colours.h"
#include "desktop/painter_surface.h"
#include "desktop/read_aloud.h"

#include <QFontInfo>
#include <QStyleOptionFocusRect>

namespace wortlex {

void draw_focus(QPainter& painter, const QWidget& widget) {
    if (!widget.hasFocus()) return;
    QStyleOptionFocusRect option;
    option.initFrom(&widget);
    option.rect = widget.rect().adjusted(3, 3, -3, -3);
    widget.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, &widget);
}

SwatchButton::SwatchButton(std::function<std::uint32_t()> colour, const std::function<void()>& press,
                           QWidget* parent)
    : QAbstractButton(parent), colour_(std::move(colour)) {
    setFocusPolicy(press ? Qt::StrongFocus : Qt::NoFocus);
    if (press) {
        connect(this, &QAbstractButton::clicked, this, press);
    } else {
        give_role(*this, QAccessible::Graphic);
        let_reader_reach(*this);
    }
}

QSize SwatchButton::sizeHint() const {
    const int height = fontMetrics().height();
    return {height * 4, height * 2};
}

void SwatchButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setBrush(colour_of(colour_()));
    painter.setPen(Qt::black);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    draw_focus(painter, *this);
}

Canvas::Canvas(std::function<void(Surface&)> draw, QWidget* parent)
    : QWidget(parent), draw_(std::move(draw)) {
    give_role(*this, QAccessible::Graphic);
    let_reader_reach(*this);
}

void Canvas::show_again(Extent least) {
    setMinimumSize(QSize(least.width, least.height) * scale());
    update();
}

// Not in between, where lines come out uneven, and no larger, as a chart is to leave room for its buttons.
qreal Canvas::scale() const {
    constexpr int large_letters = 18; // pixels; 12 are usual
    return QFontInfo(font()).pixelSize() < large_letters ? 1 : 1.5;
}

void Canvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto larger = scale();
    painter.scale(larger, larger);
    const auto area = size() / larger;
    PainterSurface surface(painter, {area.width(), area.height()});
    draw_(surface);
    painter.resetTransform();
    draw_focus(painter, *this);
}

} // namespace wortlex
