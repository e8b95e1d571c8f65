#include "desktop/captions.h"

namespace wortlex {
namespace {

// Properties of the button.
constexpr auto extra_keys = "keys";
constexpr auto own_meaning = "meaning";
constexpr auto own_reason = "reason";

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

void set_tip(QPushButton& button, const QString& meaning, const QString& reason) {
    button.setProperty(own_meaning, meaning);
    button.setProperty(own_reason, reason);
    auto keys = button.property(extra_keys).toStringList();
    keys.prepend(words_of(button.shortcut()));
    keys.removeAll(QString());
    const auto words = meaning.isEmpty() ? spoken(button.text()) : meaning;
    auto tip = keys.isEmpty() ? words : QStringLiteral("%1 (%2)").arg(words, keys.join(QLatin1String(", ")));
    if (!reason.isEmpty()) tip += QLatin1Char('\n') + reason;
    button.setToolTip(tip);
}

void add_key(QPushButton& button, const QKeySequence& key) {
    button.setProperty(extra_keys, button.property(extra_keys).toStringList() << words_of(key));
    set_tip(button, button.property(own_meaning).toString(), button.property(own_reason).toString());
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
