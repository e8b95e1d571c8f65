// What captions tell besides: the name for a screen reader, and the key in a tooltip.
#pragma once

#include <QDialogButtonBox>
#include <QPushButton>

namespace wortlex {

/// A caption without its mnemonic and colon, "&&" as "and".
QString spoken(QString caption);

/// Gives a button the tooltip `meaning`, or its caption, behind it the keys that press it, and below it why
/// it cannot be pressed.
void set_tip(QPushButton& button, const QString& meaning, const QString& reason = {});

/// A key that presses the button besides its mnemonic, to be told in its tooltip.
void add_key(QPushButton& button, const QKeySequence& key);

/// The tooltips of OK and Cancel; OK answers to Enter or not.
void set_tips(const QDialogButtonBox& buttons, bool enter_is_ok);

} // namespace wortlex
