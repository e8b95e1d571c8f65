#include "databases/backup.h"

#include "base/files.h"

#include <array>
#include <filesystem>

namespace wortlex {
namespace {

namespace fs = std::filesystem;

bool moved_if_there(const std::string& from, const std::string& to) {
    std::error_code error;
    if (!fs::exists(from, error)) return !error;
    fs::rename(from, to, error);
    return !error;
}

} // namespace

bool keep_backup(const std::string& path) {
    std::error_code error;
    if (!fs::exists(path, error)) return !error;
    const auto old = read_file(path);
    // The new copy stands before an older one is touched.
    const std::array<std::string, 4> copies = {path + ".bak3", path + ".bak2", path + ".bak", path + ".bak0"};
    if (!old || !save_atomically(copies.back(), *old)) return false;
    bool is_kept = true;
    for (std::size_t i = 1; i < copies.size(); ++i)
        is_kept = is_kept && moved_if_there(copies.at(i), copies.at(i - 1));
    return is_kept;
}

} // namespace wortlex
