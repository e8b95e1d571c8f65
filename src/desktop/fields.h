// Text fields of the toolkit as the numeric fields see them, and a field with arrows.
#pragma once

#include "forms/numeric_fields.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <functional>

namespace wortlex {

class LineField : public TextField {
public:
    explicit LineField(QLineEdit& edit) : edit_(edit) {}
    std::string text() const override { return edit_.text().toStdString(); }
    /// An equal text is left alone, and with it caret and selection.
    void set_text(const std::string& text) override;
    int caret() const override { return edit_.cursorPosition(); }
    void set_caret(int position) override { edit_.setCursorPosition(position); }
    void select_all() { edit_.selectAll(); }

private:
    QLineEdit& edit_;
};

/// Several lines of text, by default three high.
class Page : public QPlainTextEdit {
public:
    explicit Page(QWidget* parent);
    QSize sizeHint() const override;
};

class PageField : public TextField {
public:
    explicit PageField(QPlainTextEdit& edit) : edit_(edit) {}
    std::string text() const override { return edit_.toPlainText().toStdString(); }
    void set_text(const std::string& text) override;
    int caret() const override { return edit_.textCursor().position(); }
    void set_caret(int position) override;

private:
    QPlainTextEdit& edit_;
};

/// A line with arrows. The text is the form's business, so nothing typed is judged here.
class ArrowField : public QAbstractSpinBox {
public:
    explicit ArrowField(QWidget* parent);
    QLineEdit& line() const { return *lineEdit(); }
    void stepBy(int steps) override;
    /// To readers, which know the number from the text.
    void tell_range(const SpinRange& range);

    std::function<void(Spin)> stepped;

protected:
    StepEnabled stepEnabled() const override;
    /// A number that a reader sets counts as typed.
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    /// Only the focused field turns with the wheel: scrolling past one must not change a recipe.
    void wheelEvent(QWheelEvent* event) override;

private:
    void tell_number();
    void take_number(double number);

    bool is_telling_ = false; ///< to a reader, which is no edit
};

/// The text is selected whole as the field is entered, however it is entered.
void select_on_focus(QLineEdit& edit);

/// The example in an empty field is seen on a dark ground, too: some desktops do not tell its colour.
void keep_example_readable(QLineEdit& edit);

/// A choice by its letter counts before the next key does: Enter may close the dialog.
void choose_at_once(QAbstractButton& button);

/// The label's mnemonic leads to the field and selects its text, also where the field has the focus already.
void make_buddies(QLabel& label, QWidget& field);

} // namespace wortlex
