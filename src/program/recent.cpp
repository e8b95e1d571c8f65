#include "program/recent.h"

#include "base/files.h"
#include "records/documents/document_traits.h"

#include <algorithm>
#include <filesystem>

namespace wortlex {
namespace {

constexpr std::string_view recent_file = "WlxRecent.txt";
constexpr std::size_t largest_list = std::size_t{64} << 10;

bool is_no_text(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

bool is_usable(std::string_view path) {
    return !path.empty() && std::none_of(path.begin(), path.end(), is_no_text);
}

// A brewery that is moved takes its own documents along: they are told from its folder.
std::string line_of(std::string_view path, const std::string& data_folder) {
    if (path.starts_with(data_folder)) path.remove_prefix(data_folder.size());
    return std::string(path) + '\n';
}

std::string path_of(const std::string& line, const std::string& data_folder) {
    return line.empty() || line.front() == '/' ? line : data_folder + line;
}

// A brewer of many recipes still finds his sessions.
bool has_room(const RecentDocuments& recent, std::string_view path) {
    const auto is_alike = [kind = document_kind(path)](const auto& other) {
        return document_kind(other) == kind;
    };
    return std::count_if(recent.begin(), recent.end(), is_alike) < std::ptrdiff_t{recent_limit};
}

void add_last(RecentDocuments& recent, std::string_view path) {
    const bool is_new = std::find(recent.begin(), recent.end(), path) == recent.end();
    if (is_new && is_usable(path) && has_room(recent, path)) recent.emplace_back(path);
}

} // namespace

RecentDocuments LoadRecent(const std::string& data_folder) {
    const auto file = read_file(find_data_file(data_folder, recent_file), largest_list + 1);
    RecentDocuments recent;
    if (!file || file->size() > largest_list) return recent;
    std::string line;
    for (const std::byte byte : *file) {
        const auto c = static_cast<char>(byte);
        if (c != '\n') {
            line += c;
            continue;
        }
        add_last(recent, path_of(line, data_folder));
        line.clear();
    }
    add_last(recent, path_of(line, data_folder));
    return recent;
}

bool SaveRecent(const std::string& data_folder, const RecentDocuments& recent) {
    std::string lines;
    for (const auto& path : recent) lines += line_of(path, data_folder);
    return save_atomically(find_data_file(data_folder, recent_file), std::as_bytes(std::span(lines)));
}

void remember(RecentDocuments& recent, const std::string& path) {
    if (!is_usable(path)) return;
    RecentDocuments reordered = {path};
    for (const auto& older : recent) add_last(reordered, older);
    recent = std::move(reordered);
}

std::string recent_name(const RecentDocuments& recent, std::size_t index) {
    if (index >= recent.size()) return {};
    auto name = file_name(recent[index]);
    const bool is_ambiguous = std::count_if(recent.begin(), recent.end(),
                                            [&](const auto& path) { return file_name(path) == name; }) > 1;
    if (!is_ambiguous) return name;
    return name + " (" + std::filesystem::path(recent[index]).parent_path().string() + ")";
}

} // namespace wortlex
