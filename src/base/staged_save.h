// A save in two steps: the new content is written beside its file, and then takes its place.
#pragma once

#include "base/bytes.h"
#include "base/open_file.h"

#include <optional>
#include <string>

namespace wortlex {

/// New content that is safe on the disk, but not in its place yet. One that never gets there leaves nothing.
class StagedSave {
public:
    /// Nothing if the file could not be written itself, or there is no room.
    static std::optional<StagedSave> write(const std::string& path, ByteView content);

    StagedSave(StagedSave&&) noexcept = default;
    StagedSave& operator=(StagedSave&&) = delete;
    ~StagedSave();

    /// Whether it is now the file. The folder is not flushed yet.
    bool put_in_place();
    const std::string& folder() const { return folder_; }

private:
    StagedSave(OpenFile file, std::string target, std::string folder, std::string temporary)
        : file_(std::move(file)), target_(std::move(target)), folder_(std::move(folder)),
          temporary_(std::move(temporary)) {}

    OpenFile file_; ///< none where this was moved from; locked, so that nobody clears it away
    std::string target_, folder_, temporary_;
};

/// Makes sure that what was renamed or removed in a folder stays so.
void flush_folder(const std::string& folder);

} // namespace wortlex
