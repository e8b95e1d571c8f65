#include "base/kept_work.h"

#include <filesystem>

namespace wortlex {
namespace {

std::string waiting(const std::string& path) {
    return path + ".later";
}

} // namespace

bool is_work_kept(const std::string& path) {
    return stamp_of(path) || stamp_of(waiting(path));
}

std::optional<Bytes> take_up_kept_work(const std::string& path, std::size_t limit) {
    std::error_code error;
    if (!std::filesystem::exists(path, error)) std::filesystem::rename(waiting(path), path, error);
    return read_file(path, limit);
}

void put_off_kept_work(const std::string& path) {
    std::error_code error;
    std::filesystem::rename(path, waiting(path), error);
}

void forget_kept_work(const std::string& path) {
    std::error_code error;
    std::filesystem::remove(path, error);
}

} // namespace wortlex
