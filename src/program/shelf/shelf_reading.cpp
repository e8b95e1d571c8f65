#include "program/shelf/shelf_reading.h"

#include "records/documents/document_traits.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <utility>

namespace wortlex {
namespace {

// Nothing for a folder that cannot be read.
std::optional<std::vector<std::string>> recipe_files(const std::string& folder, const std::stop_token& stop) {
    std::vector<std::string> paths;
    std::error_code error;
    auto entry = std::filesystem::directory_iterator(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        if (stop.stop_requested()) return paths;
        auto path = folder + entry->path().filename().string();
        if (document_kind(path) == DocumentKind::recipe) paths.push_back(std::move(path));
    }
    return error ? std::nullopt : std::optional(std::move(paths));
}

} // namespace

ShelfReading::ShelfReading(std::string folder, const Settings& settings)
    : folder_(std::move(folder)), settings_(settings),
      worker_([this](const std::stop_token& stop) { read_folder(stop); }) {}

std::vector<ShelfEntry> ShelfReading::take() {
    const std::lock_guard lock(mutex_);
    return std::exchange(read_, {});
}

void ShelfReading::read_folder(const std::stop_token& stop) {
    const auto paths = recipe_files(folder_, stop);
    is_readable_ = paths.has_value();
    if (paths) {
        std::vector<std::jthread> others;
        for (auto count = std::thread::hardware_concurrency(); count > 1; --count)
            others.emplace_back([&] { read_some(stop, *paths); });
        read_some(stop, *paths);
    }
    is_done_ = true; // the others have ended
}

void ShelfReading::read_some(const std::stop_token& stop, const std::vector<std::string>& paths) {
    for (auto i = next_++; i < paths.size() && !stop.stop_requested(); i = next_++) {
        auto entry = read_shelf_entry(paths[i], settings_);
        const std::lock_guard lock(mutex_);
        read_.push_back(std::move(entry));
    }
}

} // namespace wortlex
