// What is too large for a small screen, or for one that shows everything larger.
#pragma once

#include <QScrollArea>

namespace wortlex {

/// A part of a window, whole where there is room and behind scroll bars elsewhere; what has the focus is in
/// sight.
class Scrolled : public QScrollArea {
public:
    /// Takes the part over, unless somebody else destroys it before.
    Scrolled(QWidget& part, QWidget* parent);
    Scrolled(QLayout* part, QWidget* parent);
    QSize sizeHint() const override { return widget()->sizeHint(); }
    /// Of the part, as far as a screen has room for it.
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override { return widget()->heightForWidth(width); }
    /// The window hears that the part has become larger or smaller.
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace wortlex
