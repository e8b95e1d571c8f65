// The log of faults, to be read and copied.
#pragma once

#include "base/ports/clipboard.h"
#include "forms/places.h"

#include <QWidget>

namespace wortlex {

void show_log(Clipboard& clipboard, const Places& places, QWidget* owner);

} // namespace wortlex
