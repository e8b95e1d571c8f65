#include "desktop/scrolled.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QStyle>

namespace wortlex {
namespace {

QWidget& laid_out(QLayout* layout) {
    auto* const part = new QWidget; // the area takes it over
    part->setLayout(layout);
    return *part;
}

} // namespace

Scrolled::Scrolled(QLayout* part, QWidget* parent) : Scrolled(laid_out(part), parent) {}

Scrolled::Scrolled(QWidget& part, QWidget* parent) : QScrollArea(parent) {
    part.layout()->setContentsMargins({});
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(&part);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, QWidget* now) {
        if (now == nullptr || widget() == nullptr || !widget()->isAncestorOf(now)) return;
        // All of it: the toolkit would show its caret alone.
        const auto centre = now->mapTo(widget(), now->rect().center());
        const auto margins =
            (now->size() / 2).grownBy({1, now->height(), 0, 0}).boundedTo(viewport()->size() / 2);
        ensureVisible(centre.x(), centre.y(), margins.width(), margins.height());
    });
}

QSize Scrolled::minimumSizeHint() const {
    constexpr QSize rest_of_window(40, 150); // title bar, menu, buttons
    const auto room = screen()->availableSize() - rest_of_window;
    auto whole = widget()->minimumSizeHint();
    if (whole.height() > room.height()) whole += QSize(style()->pixelMetric(QStyle::PM_ScrollBarExtent), 0);
    return whole.boundedTo(room);
}

bool Scrolled::hasHeightForWidth() const {
    return widget() != nullptr && widget()->layout()->hasHeightForWidth();
}

bool Scrolled::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

} // namespace wortlex
