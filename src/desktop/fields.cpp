#include "desktop/fields.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QTimer>
#include <QWheelEvent>

#include <cmath>
#include <utility>

namespace wortlex {
namespace {

// A letter with Alt belongs to a button or menu, also to one that is disabled: it is no text.
bool is_lost_mnemonic(const QKeyEvent& event) {
    return event.modifiers().testFlag(Qt::AltModifier) && !event.modifiers().testFlag(Qt::ControlModifier) &&
           !event.text().isEmpty() && event.text().front().isPrint();
}

class FocusSelector : public QObject {
public:
    explicit FocusSelector(QLineEdit& edit) : QObject(&edit), edit_(edit) { edit.installEventFilter(this); }

    // A click sets the caret after the focus has come, so the selection waits until it is over.
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* const key = dynamic_cast<QKeyEvent*>(event);
        if (key != nullptr && event->type() == QEvent::KeyPress && is_lost_mnemonic(*key)) return true;
        const auto* const focus = dynamic_cast<QFocusEvent*>(event);
        if (focus != nullptr && focus->gotFocus() && focus->reason() == Qt::MouseFocusReason)
            QTimer::singleShot(0, &edit_, &QLineEdit::selectAll);
        return QObject::eventFilter(watched, event);
    }

private:
    QLineEdit& edit_;
};

class ExampleInk : public QObject {
public:
    explicit ExampleInk(QLineEdit& edit) : QObject(&edit), edit_(edit) {
        edit.installEventFilter(this);
        apply();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::PaletteChange) apply();
        return QObject::eventFilter(watched, event);
    }

private:
    void apply() {
        constexpr int half = 128;
        auto ink = edit_.palette().color(QPalette::Active, QPalette::Text);
        ink.setAlpha(half);
        if (edit_.palette().color(QPalette::Active, QPalette::PlaceholderText) == ink) return;
        QPalette own; // of this role alone; the others go on following the desktop
        own.setColor(QPalette::PlaceholderText, ink);
        edit_.setPalette(own);
    }

    QLineEdit& edit_;
};

// The focus of a field that has it does not come anew.
class MnemonicSelector : public QObject {
public:
    explicit MnemonicSelector(QLabel& label) : QObject(&label), label_(label) {
        label.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Shortcut) {
            if (auto* const line = qobject_cast<QLineEdit*>(label_.buddy())) line->selectAll();
            if (auto* const box = qobject_cast<QAbstractSpinBox*>(label_.buddy())) box->selectAll();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QLabel& label_;
};

// A toolkit's button first moves for a while when its letter is pressed, and counts then.
class PromptLetter : public QObject {
public:
    explicit PromptLetter(QAbstractButton& button) : QObject(&button), button_(button) {
        button.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* const letter = dynamic_cast<QShortcutEvent*>(event);
        if (letter == nullptr || letter->isAmbiguous()) return QObject::eventFilter(watched, event);
        button_.setFocus(Qt::ShortcutFocusReason);
        button_.click();
        return true;
    }

private:
    QAbstractButton& button_;
};

// By these the toolkit tells readers of a field with arrows.
constexpr auto value_property = "value", low_property = "minimum", high_property = "maximum",
               step_property = "stepSize";

QSize few_lines(const QPlainTextEdit& page) {
    constexpr int lines = 3, digits = 26;
    const auto metrics = page.fontMetrics();
    const int frame = 2 * page.frameWidth() + 2 * static_cast<int>(page.document()->documentMargin());
    return {digits * metrics.horizontalAdvance(QLatin1Char('0')), lines * metrics.lineSpacing() + frame};
}

} // namespace

void LineField::set_text(const std::string& text) {
    const auto wanted = QString::fromStdString(text);
    if (edit_.text() == wanted) return;
    edit_.setText(wanted);
    if (edit_.isReadOnly()) edit_.setCursorPosition(0);
}

void PageField::set_text(const std::string& text) {
    const auto wanted = QString::fromStdString(text);
    if (edit_.toPlainText() != wanted) edit_.setPlainText(wanted);
}

void PageField::set_caret(int position) {
    auto cursor = edit_.textCursor();
    cursor.setPosition(std::min(position, edit_.document()->characterCount() - 1));
    edit_.setTextCursor(cursor);
}

Page::Page(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    setMinimumSize(few_lines(*this));
}

QSize Page::sizeHint() const {
    return few_lines(*this);
}

ArrowField::ArrowField(QWidget* parent) : QAbstractSpinBox(parent) {
    setAccelerated(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(lineEdit(), &QLineEdit::textChanged, this, &ArrowField::tell_number);
}

// Of the text as it is: another listener may have changed it since the signal was sent.
void ArrowField::tell_number() {
    const bool was_telling = std::exchange(is_telling_, true);
    setProperty(value_property, lineEdit()->text().toDouble());
    is_telling_ = was_telling;
}

void ArrowField::tell_range(const SpinRange& range) {
    setProperty(low_property, double{range.low});
    setProperty(high_property, double{range.high});
    setProperty(step_property, double{range.step});
}

bool ArrowField::event(QEvent* event) {
    if (const auto* const change = dynamic_cast<QDynamicPropertyChangeEvent*>(event);
        change != nullptr && change->propertyName() == value_property && !is_telling_)
        take_number(property(value_property).toDouble());
    return QAbstractSpinBox::event(event);
}

void ArrowField::take_number(double number) {
    if (!std::isfinite(number) || number == lineEdit()->text().toDouble()) return;
    lineEdit()->selectAll();
    lineEdit()->insert(QString::number(number)); // which is told as an edit
}

void ArrowField::stepBy(int steps) {
    if (!stepped) return;
    for (int step = 0; step < std::abs(steps); ++step) stepped(steps > 0 ? Spin::up : Spin::down);
    lineEdit()->selectAll();
}

void ArrowField::focusInEvent(QFocusEvent* event) {
    QAbstractSpinBox::focusInEvent(event);
    // By a click, or as the field that a window begins with.
    if (event->reason() == Qt::MouseFocusReason || event->reason() == Qt::OtherFocusReason)
        QTimer::singleShot(0, lineEdit(), &QLineEdit::selectAll);
}

void ArrowField::keyPressEvent(QKeyEvent* event) {
    if (!is_lost_mnemonic(*event)) QAbstractSpinBox::keyPressEvent(event);
}

QAbstractSpinBox::StepEnabled ArrowField::stepEnabled() const {
    return StepUpEnabled | StepDownEnabled;
}

void ArrowField::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) return QAbstractSpinBox::wheelEvent(event);
    event->ignore();
}

void keep_example_readable(QLineEdit& edit) {
    new ExampleInk(edit); // the line owns it
}

void select_on_focus(QLineEdit& edit) {
    new FocusSelector(edit); // the field owns it
}

void choose_at_once(QAbstractButton& button) {
    new PromptLetter(button); // the button owns it
}

void make_buddies(QLabel& label, QWidget& field) {
    label.setBuddy(&field);
    new MnemonicSelector(label); // the label owns it
}

} // namespace wortlex
