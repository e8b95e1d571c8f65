#include "base/files.h"

#include "base/open_file.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace wortlex {
namespace {

// Non-blocking, so that a named pipe in place of a file does not hang the program.
OpenFile open_regular(const std::string& path, int mode, struct stat& status) {
    OpenFile file(::open(path.c_str(), mode | O_CLOEXEC | O_NONBLOCK));
    if (!file.is_open() || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) file.close();
    return file;
}

bool write_all(int descriptor, ByteView content) {
    while (!content.empty()) {
        const auto written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        content = content.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

bool equal_but_for_case(std::string_view a, std::string_view b) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lower(x) == lower(y); });
}

// The file that a save replaces: behind every symbolic link, even where the last one dangles.
std::string behind_links(const std::string& path) {
    std::error_code error;
    auto target = std::filesystem::path(path);
    for (int hops = 0; hops < 40 && std::filesystem::is_symlink(target, error); ++hops) {
        const auto link = std::filesystem::read_symlink(target, error);
        if (error) break;
        target = target.parent_path() / link;
    }
    return target.string();
}

// What the new file takes over from the old one.
struct OldFile {
    bool exists = false;
    bool writable = true;
    struct stat status = {};
};

OldFile inspect(const std::string& target) {
    OldFile old;
    old.exists = ::lstat(target.c_str(), &old.status) == 0;
    if (old.exists) {
        struct stat status = {};
        old.writable = S_ISREG(old.status.st_mode) && open_regular(target, O_WRONLY, status).is_open();
    }
    return old;
}

bool take_mode_and_owner(int descriptor, const OldFile& old) {
    if (!old.exists) {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        return ::fchmod(descriptor, 0666 & ~mask) == 0;
    }
    // Only the super-user may give a file away; anybody else owns the old file or shares its group.
    if (::fchown(descriptor, old.status.st_uid, old.status.st_gid) != 0) errno = 0;
    return ::fchmod(descriptor, old.status.st_mode & 07777) == 0;
}

constexpr std::string_view temporary_name = ".wortlex-XXXXXX";

bool is_temporary(const std::string& name) {
    return name.size() == temporary_name.size() &&
           name.starts_with(temporary_name.substr(0, temporary_name.find('X')));
}

// A save holds its temporary file locked, so what can be locked was left by one that was killed.
bool is_abandoned(const std::string& path) {
    struct stat status = {};
    const auto file = open_regular(path, O_RDONLY, status);
    return file.is_open() && ::flock(file.get(), LOCK_EX | LOCK_NB) == 0;
}

constexpr std::string_view write_error =
    "Wortlex has experienced an error in writing this file.\n\nPossible reasons include:\n\n"
    "a) The file has somehow been tagged as read-only by the system.\n\n"
    "b) The file has become corrupted by other means.\n\n"
    "If the file has been transferred over a network and saved by a \n"
    "different program, it is very likely it has been tagged as read-only.\n\n"
    "It is suggested you try and save the file under a different name.";

void flush_folder(const std::string& folder) {
    const OpenFile directory(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory.is_open()) ::fsync(directory.get());
}

} // namespace

std::optional<Bytes> read_file(const std::string& path, std::size_t limit) {
    struct stat status = {};
    const auto file = open_regular(path, O_RDONLY, status);
    if (!file.is_open()) return std::nullopt;
    Bytes content(std::min(limit, static_cast<std::size_t>(status.st_size)));
    std::size_t filled = 0;
    while (filled < content.size()) {
        const auto count = ::read(file.get(), content.data() + filled, content.size() - filled);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
    }
    content.resize(filled);
    return content;
}

bool save_atomically(const std::string& path, ByteView content) {
    const auto target = behind_links(path);
    const auto old = inspect(target);
    if (target.empty() || !old.writable) return false;

    const auto parent = std::filesystem::path(target).parent_path().string();
    const auto folder = parent.empty() ? std::string(".") : parent;
    remove_broken_saves(folder);
    auto temporary = folder + "/" + std::string(temporary_name);
    OpenFile file(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!file.is_open()) return false;
    ::flock(file.get(), LOCK_EX | LOCK_NB); // until it has its name; a file system without locks keeps none

    const bool written = write_all(file.get(), content) && take_mode_and_owner(file.get(), old) &&
                         ::fsync(file.get()) == 0 && ::rename(temporary.c_str(), target.c_str()) == 0;
    if (!written) {
        ::unlink(temporary.c_str());
        return false;
    }
    flush_folder(folder);
    return true;
}

bool save_or_tell(const std::string& path, ByteView content, Prompts& prompts) {
    if (save_atomically(path, content)) return true;
    prompts.tell({.text = write_error, .icon = Icon::warning});
    return false;
}

void remove_broken_saves(const std::string& folder) {
    std::error_code error;
    auto entry = std::filesystem::directory_iterator(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const auto path = entry->path().string();
        if (is_temporary(entry->path().filename().string()) && is_abandoned(path)) ::unlink(path.c_str());
    }
}

std::optional<FileStamp> stamp_of(const std::string& path) {
    std::error_code error;
    const auto modified = std::filesystem::last_write_time(path, error);
    if (error) return std::nullopt;
    const auto size = std::filesystem::file_size(path, error);
    if (error) return std::nullopt;
    return FileStamp{modified.time_since_epoch().count(), size};
}

std::string find_data_file(const std::string& folder, std::string_view name) {
    auto path = folder + std::string(name);
    std::error_code error;
    if (std::filesystem::exists(path, error)) return path;
    auto entry = std::filesystem::directory_iterator(folder, error);
    while (!error && entry != std::filesystem::directory_iterator()) {
        const auto found = entry->path().filename().string();
        if (equal_but_for_case(found, name)) return folder + found;
        entry.increment(error);
    }
    return path;
}

std::string file_name(const std::string& path) {
    return std::filesystem::path(path).filename().string();
}

std::string tame_file_name(std::string name, std::string_view unwanted) {
    std::replace_if(
        name.begin(), name.end(), [unwanted](char c) { return unwanted.find(c) != std::string_view::npos; },
        '_');
    return name;
}

std::string native_folder(std::string_view stored) {
    std::string folder(stored);
    std::replace(folder.begin(), folder.end(), '\\', '/');
    if (!folder.empty() && folder.back() != '/') folder += '/';
    return folder;
}

} // namespace wortlex
