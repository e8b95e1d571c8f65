// What every window shares: where windows stand, the settings that they show themselves by, and the board on
// which it hears of changes.
#pragma once

#include "base/ports/notice_board.h"
#include "settings/settings.h"
#include "settings/system_files.h"

namespace wortlex {

struct Places {
    ToolPositions& positions;
    const SystemSettings& settings;
    NoticeBoard& notices;
};

} // namespace wortlex
