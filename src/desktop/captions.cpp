#include "desktop/captions.h"

namespace wortlex {
namespace {

constexpr auto extra_key = "key"; // a property of the button

QString words_of(const QKeySequence& key) {
    return key.toString(QKeySequence::NativeText);
}

} // namespace

QString spoken(QString caption) {
    caption.replace(QLatin1String("&&"), QLatin1String("and"));
    caption.remove(QLatin1Char('&'));
    if (caption.endsWith(QLatin1Char(':'))) caption.chop(1);
    return caption;
}

void set_tip(QPushButton& button, const QString& meaning) {
    QStringList keys = {words_of(button.shortcut()), button.property(extra_key).toString()};
    keys.removeAll(QString());
    const auto words = meaning.isEmpty() ? spoken(button.text()) : meaning;
    button.setToolTip(keys.isEmpty() ? words
                                     : QStringLiteral("%1 (%2)").arg(words, keys.join(QLatin1String(", "))));
}

void add_key(QPushButton& button, const QKeySequence& key) {
    button.setProperty(extra_key, words_of(key));
    set_tip(button, {});
}

void set_tips(const QDialogButtonBox& buttons, bool enter_is_ok) {
    const auto tell = [&](QDialogButtonBox::StandardButton which, Qt::Key key) {
        if (auto* const button = buttons.button(which)) add_key(*button, key);
    };
    tell(QDialogButtonBox::Cancel, Qt::Key_Escape);
    if (enter_is_ok) return tell(QDialogButtonBox::Ok, Qt::Key_Enter);
    set_tip(*buttons.button(QDialogButtonBox::Ok), {});
}

} // namespace wortlex
