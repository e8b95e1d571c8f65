// File dialogs, clock and clipboard of the toolkit.
#pragma once

#include "base/ports/clipboard.h"
#include "base/ports/clock.h"
#include "base/ports/file_dialogs.h"

namespace wortlex {

class FileDialogs : public Files {
public:
    std::optional<std::string> choose_to_open(const FileChoice& choice) override;
    std::optional<std::string> choose_to_save(const FileChoice& choice) override;
};

class SystemClock : public Clock {
public:
    std::int64_t now() const override;
    CalendarDate today() const override;
};

class SystemClipboard : public Clipboard {
public:
    void put_text(std::string_view utf8) override;
};

} // namespace wortlex
