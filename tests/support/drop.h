// A file dragged onto a window.
#pragma once

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include <string>

namespace wortlex {

/// Drops the file where the window takes it, and waits for what comes of it; whether it was taken.
inline bool drop_file(QWidget& window, const std::string& path) {
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(QString::fromStdString(path))});
    const QPoint middle = window.rect().center();
    QDragEnterEvent enter(middle, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(middle, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    QApplication::processEvents();
    return drop.isAccepted();
}

} // namespace wortlex
