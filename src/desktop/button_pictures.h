// The pictures that the settings may put on Print and Help in place of their words, and on the buttons of
// instruments beside them.
#pragma once

#include "settings/system_settings.h"

#include <QPushButton>

#include <string_view>

namespace wortlex {

/// Whether there is a picture that takes the place of the words of this key.
bool has_picture(std::string_view key);

/// Gives a button its caption, or its picture where there is one and the settings ask for it. The mnemonic
/// works in both cases.
void show_caption(QPushButton& button, std::string_view key, const QString& caption,
                  const SystemSettings& settings);

} // namespace wortlex
