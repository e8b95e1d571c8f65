// Real keys into real fields.
#pragma once

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest/QTest>

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

inline void press(const QWidget& window, const char* key) {
    window.findChild<QPushButton*>(QString::fromLatin1(key))->click();
}

} // namespace wortlex
