#include "program/brewery_folder.h"

#include "base/files.h"
#include "base/folder_guard.h"
#include "program/program.h"
#include "program/user_folders.h"

#include <filesystem>

namespace wortlex {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view homeless = "There is no home folder to keep the brewery in.";

// What stands in a brewery folder once all that is shipped has arrived, and while a file is on its way.
constexpr std::string_view complete_mark = ".wortlex-complete";
constexpr std::string_view half_file = ".wortlex-copy";

// A folder beside that of the programs; empty if there is none.
std::string beside(const std::string& programs, std::string_view folder) {
    const auto path = fs::path(programs).parent_path().parent_path() / folder;
    std::error_code error;
    return fs::is_directory(path, error) ? native_folder(path.string()) : std::string();
}

std::string installed_data(const std::string& programs) {
    return beside(programs, "share/wortlex/brewery");
}

bool is_brewery(const std::string& folder) {
    std::error_code error;
    return fs::exists(find_data_file(folder, "WlxMSys.DAT"), error);
}

bool is_there(const fs::path& file) {
    std::error_code error;
    const auto folder = native_folder(file.parent_path().string());
    return fs::exists(fs::symlink_status(find_data_file(folder, file.filename().string()), error));
}

// It arrives whole or not at all. What is shipped may be read-only.
bool copy_file(const fs::path& from, const fs::path& to, const fs::path& half) {
    std::error_code error;
    fs::remove(half, error);
    fs::copy_file(from, half, error);
    if (!error) fs::permissions(half, fs::perms::owner_write, fs::perm_options::add, error);
    if (!error) fs::rename(half, to, error);
    return !error;
}

bool copy_missing(const fs::path& shipped, const fs::path& folder) {
    std::error_code error;
    auto entry = fs::recursive_directory_iterator(shipped, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        const auto place = folder / entry->path().lexically_relative(shipped);
        if (entry->is_directory(error))
            fs::create_directories(place, error);
        else if (!is_there(place) && !copy_file(entry->path(), place, folder / half_file))
            return false;
        if (error) return false;
    }
    return !error;
}

// Once it is complete, what the brewer deletes stays away.
bool fill(const std::string& folder, const std::string& shipped) {
    std::error_code error;
    const auto mark = folder + std::string(complete_mark);
    if (fs::exists(mark, error)) return true;
    fs::create_directories(folder, error);
    const FolderGuard guard(folder);
    if (guard.is_open_elsewhere()) return true; // and being filled
    return copy_missing(fs::path(shipped).parent_path(), fs::path(folder).parent_path()) &&
           save_atomically(mark, {});
}

} // namespace

StartPlaces start_places() {
    std::error_code error;
    const auto self = fs::read_symlink("/proc/self/exe", error);
    return {working_folder(), native_folder(self.parent_path().string()), user_data_folder()};
}

std::string shipped_data(const std::string& programs) {
    const auto installed = installed_data(programs);
    return installed.empty() ? beside(programs, "brewery") : installed; // which a build has there
}

std::optional<std::string> open_brewery(const StartPlaces& places, Prompts& prompts) {
    const auto shipped = installed_data(places.programs);
    if (shipped.empty() || is_brewery(places.working)) return places.working;
    auto folder = beside(places.programs, "brewery");
    if (folder.empty() && places.user_data.empty()) {
        prompts.tell({.text = homeless, .icon = Icon::error});
        return std::nullopt;
    }
    if (folder.empty()) folder = places.user_data + "wortlex/";
    if (fill(folder, shipped)) return folder;
    const auto text = "The brewery folder cannot be made or filled. Is the disk full, or a folder "
                      "read-only?\n" +
                      folder;
    prompts.tell({.text = text, .icon = Icon::error, .own = folder});
    return std::nullopt;
}

} // namespace wortlex
