// A clipboard that keeps all that was put on it.
#pragma once

#include "base/ports/clipboard.h"

#include <string>
#include <vector>

namespace wortlex {

struct RecordingClipboard : Clipboard {
    std::vector<std::string> texts;
    void put_text(std::string_view utf8) override { texts.emplace_back(utf8); }
};

} // namespace wortlex
