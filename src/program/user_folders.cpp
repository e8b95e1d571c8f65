#include "program/user_folders.h"

#include "base/files.h"

#include <cstdlib>

namespace wortlex {
namespace {

std::string variable(const char* name) {
    const char* const value = std::getenv(name); // NOLINT(concurrency-mt-unsafe): nobody sets any
    return value == nullptr ? std::string() : value;
}

// What the variable says counts only as a whole path, by the rules of the desktops.
std::string user_folder(const char* name, std::string_view below_home) {
    if (const auto told = variable(name); told.starts_with('/')) return native_folder(told);
    const auto home = variable("HOME");
    return home.empty() ? home : native_folder(home).append(below_home);
}

} // namespace

std::string user_data_folder() {
    return user_folder("XDG_DATA_HOME", ".local/share/");
}

std::string user_state_folder() {
    return user_folder("XDG_STATE_HOME", ".local/state/");
}

} // namespace wortlex
