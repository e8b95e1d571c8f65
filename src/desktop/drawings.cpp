#include "desktop/drawings.h"

#include "desktop/colours.h"
#include "desktop/painter_surface.h"

#include <QStyleOptionFocusRect>

namespace wortlex {

SwatchButton::SwatchButton(std::function<std::uint32_t()> colour, const std::function<void()>& press,
                           QWidget* parent)
    : QAbstractButton(parent), colour_(std::move(colour)) {
    setFocusPolicy(press ? Qt::StrongFocus : Qt::NoFocus);
    if (press) connect(this, &QAbstractButton::clicked, this, press);
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
    if (!hasFocus()) return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = rect().adjusted(3, 3, -3, -3);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

Canvas::Canvas(std::function<void(Surface&)> draw, QWidget* parent)
    : QWidget(parent), draw_(std::move(draw)) {}

void Canvas::show_again(Extent least) {
    setMinimumSize(least.width, least.height);
    update();
}

void Canvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PainterSurface surface(painter, {width(), height()});
    draw_(surface);
}

} // namespace wortlex
