#include "windows/documents/document_keys.h"

#include "desktop/captions.h"
#include "desktop/undo_keys.h"

#include <QEvent>
#include <QLabel>
#include <QShortcut>

#include <algorithm>

namespace wortlex {
namespace {

// Pictures have their letter without showing it.
bool is_taken(const QKeySequence& letter, const QWidget& page, const QPushButton& ok) {
    const auto buttons = page.findChildren<QAbstractButton*>();
    const auto labels = page.findChildren<QLabel*>();
    return std::any_of(buttons.begin(), buttons.end(),
                       [&](const auto* button) { return button != &ok && button->shortcut() == letter; }) ||
           std::any_of(labels.begin(), labels.end(),
                       [&](const auto* label) { return QKeySequence::mnemonic(label->text()) == letter; });
}

// The box of a window that is no dialog marks its OK as what Enter presses, each time it is shown.
class PlainOk : public QObject {
public:
    explicit PlainOk(QPushButton& ok) : QObject(&ok), ok_(ok) { ok.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && ok_.isDefault()) ok_.setDefault(false);
        return QObject::eventFilter(watched, event);
    }

private:
    QPushButton& ok_;
};

} // namespace

void add_document_keys(QWidget& window, RecipeEditor& editor, const std::function<void()>& save) {
    add_save_key(window, save);
    add_undo_keys(
        window, [&editor] { undo(editor); }, [&editor] { redo(editor); });
}

void add_save_key(QWidget& window, const std::function<void()>& save) {
    for (const auto& sequence : QKeySequence::keyBindings(QKeySequence::Save))
        QObject::connect(new QShortcut(sequence, &window), &QShortcut::activated, &window, save);
}

void add_ok_keys(QWidget& page, QPushButton& ok) {
    for (const auto* const caption : {"&OK", "O&K", "OK"}) {
        ok.setText(QString::fromLatin1(caption));
        if (!is_taken(ok.shortcut(), page, ok)) break;
    }
    add_key(ok, Qt::CTRL | Qt::Key_Enter);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter})
        QObject::connect(new QShortcut(Qt::CTRL | key, &page), &QShortcut::activated, &ok,
                         &QPushButton::click);
}

void add_page_buttons(QWidget& page, const QDialogButtonBox& buttons, PageEnding& ending) {
    auto* const ok = buttons.button(QDialogButtonBox::Ok);
    auto* const cancel = buttons.button(QDialogButtonBox::Cancel);
    set_tip(*ok, QPushButton::tr("Keeps what was changed here"));
    set_tip(*cancel, QPushButton::tr("Puts back what was changed here"));
    add_ok_keys(page, *ok);
    for (auto* const button : {ok, cancel}) button->setAutoDefault(false);
    new PlainOk(*ok); // which owns it
    QObject::connect(&buttons, &QDialogButtonBox::accepted, &page,
                     [&ending] { ending.close_by(PageEnd::ok); });
    QObject::connect(&buttons, &QDialogButtonBox::rejected, &page,
                     [&ending] { ending.close_by(PageEnd::cancel); });
}

} // namespace wortlex
