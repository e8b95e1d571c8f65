// One program a brewery folder.
#pragma once

#include "base/open_file.h"

#include <string>

namespace wortlex {

/// Holds a folder, which ends in a slash, until its own end. Two programs on one would overwrite each other's
/// databases. The system frees a folder with the program's end, however that comes, so a file that was left,
/// with whatever in it, shuts nobody out. A folder in which no file can be locked needs no guard, or gets
/// none.
class FolderGuard {
public:
    explicit FolderGuard(const std::string& folder);
    /// Whether another program holds it.
    bool is_open_elsewhere() const { return elsewhere_; }

private:
    OpenFile file_;
    bool elsewhere_;
};

} // namespace wortlex
