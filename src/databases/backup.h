// Copies of a database as it was before its imports.
#pragma once

#include <string>

namespace wortlex {

/// Copies the file at `path` to `path`.bak, and what was there to .bak2 and .bak3. False where that fails; a
/// file that is not there needs no copy.
bool keep_backup(const std::string& path);

} // namespace wortlex
