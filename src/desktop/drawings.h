// The two fields that are painted: a patch of colour and a drawing.
#pragma once

#include "base/ports/surface.h"

#include <QAbstractButton>

#include <functional>

class QPainter;

namespace wortlex {

/// Around a painted widget that has the focus.
void draw_focus(QPainter& painter, const QWidget& widget);

class SwatchButton : public QAbstractButton {
public:
    /// Without an action it is only a patch, which nothing but a screen reader goes to.
    SwatchButton(std::function<std::uint32_t()> colour, const std::function<void()>& press, QWidget* parent);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::function<std::uint32_t()> colour_;
};

/// A figure like any other, which a screen reader goes to, and half as large again as told where letters are
/// large.
class Canvas : public QWidget {
public:
    Canvas(std::function<void(Surface&)> draw, QWidget* parent);
    void show_again(Extent least);
    QSize sizeHint() const override { return minimumSize(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    qreal scale() const;

    std::function<void(Surface&)> draw_;
};

} // namespace wortlex
