// Real keys into real fields.
#pragma once

#include <QAbstractSpinBox>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QtTest/QTest>

#include <functional>

namespace wortlex {

/// The line of a field with or without arrows.
inline QLineEdit* line_of(QWidget& field) {
    auto* const line = qobject_cast<QLineEdit*>(&field);
    return line != nullptr ? line : field.findChild<QLineEdit*>();
}

/// Replaces the text of a field as a user does: select, type.
inline void type_over(QLineEdit& line, const char* keys) {
    line.setFocus();
    line.selectAll();
    QTest::keyClicks(&line, QString::fromUtf8(keys));
}

/// What the field of a row shows.
inline QString text_of(const QWidget& window, const char* key) {
    return line_of(*window.findChild<QWidget*>(QString::fromLatin1(key)))->text();
}

inline void type_into(const QWidget& window, const char* key, const char* text) {
    type_over(*line_of(*window.findChild<QWidget*>(QString::fromLatin1(key))), text);
}

inline void press(const QWidget& window, const char* key) {
    window.findChild<QPushButton*>(QString::fromLatin1(key))->click();
}

/// The window of a kind that is seen, if there is one.
template <class Window>
Window* seen_window() {
    for (auto* const widget : QApplication::topLevelWidgets())
        if (auto* const window = dynamic_cast<Window*>(widget); window != nullptr && window->isVisible())
            return window;
    return nullptr;
}

/// Acts in the modal window that opens next.
template <class Window = QWidget>
void in_next(std::type_identity_t<std::function<void(Window&)>> act) {
    auto* const wait = new QTimer(qApp);
    QObject::connect(wait, &QTimer::timeout, wait, [wait, act = std::move(act)] {
        auto* const window = dynamic_cast<Window*>(QApplication::activeModalWidget());
        if (window == nullptr) return;
        wait->stop();
        act(*window);
        wait->deleteLater();
    });
    wait->start(1);
}

} // namespace wortlex
