#include "base/files.h"
#include "base/staged_save.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>

namespace wortlex {
namespace {

bool write_all(int descriptor, ByteView content) {
    while (!content.empty()) {
        const auto written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        content = content.subspan(static_cast<std::size_t>(written));
    }
    return true;
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

// Folders are read by the system itself: a save goes through the whole of its own, whatever its size.
struct CloseFolder {
    void operator()(DIR* directory) const { ::closedir(directory); }
};

constexpr std::string_view temporary_name = ".wortlex-XXXXXX";

bool is_temporary(std::string_view name) {
    return name.size() == temporary_name.size() &&
           name.starts_with(temporary_name.substr(0, temporary_name.find('X')));
}

// A save holds its temporary file locked, so what can be locked was left by one that was killed.
bool is_abandoned(const std::string& path) {
    struct stat status = {};
    const auto file = open_regular(path, O_RDONLY, status);
    return file.is_open() && ::flock(file.get(), LOCK_EX | LOCK_NB) == 0;
}

constexpr std::string_view no_room = " could not be written: there is no room for it on the disk.\nNothing "
                                     "is changed. Make room, or save it on "
                                     "another disk.";
constexpr std::string_view write_error =
    "Wortlex has experienced an error in writing this file.\n\nPossible reasons include:\n\n"
    "a) The file has somehow been tagged as read-only by the system.\n\n"
    "b) The file has become corrupted by other means.\n\n"
    "If the file has been transferred over a network and saved by a \n"
    "different program, it is very likely it has been tagged as read-only.\n\n"
    "It is suggested you try and save the file under a different name.";

} // namespace

void flush_folder(const std::string& folder) {
    const OpenFile directory(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory.is_open()) ::fsync(directory.get());
}

std::optional<StagedSave> StagedSave::write(const std::string& path, ByteView content) {
    auto target = behind_links(path);
    const auto old = inspect(target);
    if (target.empty() || !old.writable) return std::nullopt;

    const auto parent = std::filesystem::path(target).parent_path().string();
    auto folder = parent.empty() ? std::string(".") : parent;
    remove_broken_saves(folder);
    auto temporary = folder + "/" + std::string(temporary_name);
    OpenFile file(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!file.is_open()) return std::nullopt;
    ::flock(file.get(), LOCK_EX | LOCK_NB); // until it has its name; a file system without locks keeps none

    StagedSave staged(std::move(file), std::move(target), std::move(folder), std::move(temporary));
    const int written = staged.file_.get();
    if (!write_all(written, content) || !take_mode_and_owner(written, old) || ::fsync(written) != 0)
        return std::nullopt;
    return staged;
}

StagedSave::~StagedSave() {
    if (file_.is_open()) ::unlink(temporary_.c_str());
}

bool StagedSave::put_in_place() {
    if (::rename(temporary_.c_str(), target_.c_str()) != 0) return false;
    file_.close();
    return true;
}

bool save_atomically(const std::string& path, ByteView content) {
    auto staged = StagedSave::write(path, content);
    if (!staged || !staged->put_in_place()) return false;
    flush_folder(staged->folder());
    return true;
}

bool save_or_tell(const std::string& path, ByteView content, Prompts& prompts) {
    errno = 0;
    if (save_atomically(path, content)) return true;
    if (errno == ENOSPC || errno == EDQUOT || errno == EFBIG) {
        const auto name = file_name(path);
        const auto text = name + std::string(no_room);
        prompts.tell({.text = text, .icon = Icon::warning, .own = name});
        return false;
    }
    prompts.tell({.text = write_error, .icon = Icon::warning, .own = path});
    return false;
}

void remove_broken_saves(const std::string& folder) {
    const std::unique_ptr<DIR, CloseFolder> directory(::opendir(folder.c_str()));
    if (directory == nullptr) return;
    while (const auto* const entry = ::readdir(directory.get())) {
        const std::string_view name = std::data(entry->d_name);
        if (!is_temporary(name)) continue;
        const auto path = (std::filesystem::path(folder) / name).string();
        if (is_abandoned(path)) ::unlink(path.c_str());
    }
}

} // namespace wortlex
