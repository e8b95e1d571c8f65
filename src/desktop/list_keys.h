// Keys that press a button besides its letter, told in its tooltip. A disabled button stays as it is.
#pragma once

#include <QKeySequence>
#include <QPushButton>

namespace wortlex {

/// While the list has the focus.
void press_by_key(QWidget& list, const QKeySequence& key, QWidget& button);

/// In the whole window.
void press_in_window(QWidget& window, const QKeySequence& key, QWidget& button);

} // namespace wortlex
