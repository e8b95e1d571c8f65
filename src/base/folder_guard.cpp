#include "base/folder_guard.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>

namespace wortlex {
namespace {

// One that belongs to somebody else, or whose folder is read-only, can be locked too.
int open_lock(const std::string& path) {
    constexpr int flags = O_CLOEXEC | O_NONBLOCK;
    const int file = ::open(path.c_str(), flags | O_RDWR | O_CREAT, 0666);
    return file >= 0 ? file : ::open(path.c_str(), flags | O_RDONLY);
}

} // namespace

FolderGuard::FolderGuard(const std::string& folder)
    : file_(open_lock(folder + ".wortlex.lock")),
      elsewhere_(file_.is_open() && ::flock(file_.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {}

} // namespace wortlex
