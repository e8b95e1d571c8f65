#include "desktop/find_line.h"

#include "desktop/fields.h"
#include "desktop/list_view.h"
#include "desktop/read_aloud.h"

#include <QShortcut>

namespace wortlex {

FindLine::FindLine(QWidget* window) : QLineEdit(window) {
    setObjectName(QStringLiteral("find"));
    setAccessibleName(QStringLiteral("Find"));
    setClearButtonEnabled(true);
    keep_example_readable(*this);
    connect(new QShortcut(QKeySequence::Find, window), &QShortcut::activated, this, [this] {
        setFocus();
        selectAll();
    });
}

void FindLine::describe(const QString& example, const QString& tip) {
    setPlaceholderText(example);
    setToolTip(tip);
}

void FindLine::tell_found(const QString& words) {
    tell_description(*this, words);
}

void FindLine::take_typing_in(ListView& list) {
    list.typed = [this](const QString& text) {
        setFocus();
        setText(text);
    };
}

void FindLine::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return stepped(*event);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return entered();
    case Qt::Key_Escape:
        if (!text().isEmpty()) return clear();
        [[fallthrough]];
    default:
        QLineEdit::keyPressEvent(event);
    }
}

} // namespace wortlex
