// Keys that press a button while a list has the focus.
#pragma once

#include <QKeySequence>
#include <QPushButton>

namespace wortlex {

/// A disabled button stays as it is.
void press_by_key(QWidget& list, const QKeySequence& key, QWidget& button);

} // namespace wortlex
