// Notes that a widget has been painted.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace wortlex {

class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& watched) { watched.installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        is_painted_ = is_painted_ || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

    /// From here on.
    void start() { is_painted_ = false; }
    void wait() const {
        while (!is_painted_) QApplication::processEvents();
    }

private:
    bool is_painted_ = false;
};

} // namespace wortlex
