#include "base/files.h"

#include "base/open_file.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace wortlex {
namespace {

bool equal_but_for_case(std::string_view a, std::string_view b) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lower(x) == lower(y); });
}

} // namespace

OpenFile open_regular(const std::string& path, int mode, struct stat& status) {
    OpenFile file(::open(path.c_str(), mode | O_CLOEXEC | O_NONBLOCK));
    if (!file.is_open() || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) file.close();
    return file;
}

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
