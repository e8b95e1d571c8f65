// A file dragged onto a window.
#pragma once

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>
#include <QWindow>

#include <string>

namespace wortlex {

/// Drops the file on the middle of a widget that is shown, by way of its window as a desktop does, and waits
/// for what comes of it; whether it was taken.
inline bool drop_file(QWidget& on, const std::string& path) {
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(QString::fromStdString(path))});
    const QPoint at = on.mapTo(on.window(), on.rect().center());
    auto* const window = on.window()->windowHandle();
    QDragEnterEvent enter(at, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(at, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window, &drop);
    QApplication::processEvents();
    return drop.isAccepted();
}

} // namespace wortlex
