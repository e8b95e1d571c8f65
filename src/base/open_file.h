// A file or socket of the system, closed with its owner.
#pragma once

#include <string>
#include <unistd.h>
#include <utility>

struct stat;

namespace wortlex {

/// Owns a file descriptor, which may be none.
class OpenFile {
public:
    explicit OpenFile(int descriptor) : descriptor_(descriptor) {}
    OpenFile(OpenFile&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    OpenFile& operator=(OpenFile&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    ~OpenFile() { close(); }

    int get() const { return descriptor_; }
    bool is_open() const { return descriptor_ >= 0; }
    void close() {
        if (const int descriptor = std::exchange(descriptor_, -1); descriptor >= 0) ::close(descriptor);
    }

private:
    int descriptor_;
};

/// Opens a regular file, and nothing else, and tells its status. It never blocks: a named pipe in place of a
/// file does not hang the program.
OpenFile open_regular(const std::string& path, int mode, struct stat& status);

} // namespace wortlex
