#include "base/joint_save.h"

#include "base/files.h"
#include "base/staged_save.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <string_view>

namespace wortlex {
namespace {

constexpr std::string_view signature = "Wortlex joint save 1\n";
constexpr std::int32_t removed = -1; // in place of a length

std::string folder_of(const std::string& path) {
    const auto parent = std::filesystem::path(path).parent_path().string();
    return parent.empty() ? std::string(".") : parent;
}

// Told from the folder of the journal, so that a brewery that was moved meanwhile finds its files.
std::string path_from(const std::string& folder, const std::string& path) {
    std::error_code error;
    const auto whole = std::filesystem::absolute(path, error).lexically_normal();
    const auto near = whole.lexically_relative(std::filesystem::absolute(folder, error).lexically_normal());
    return near.empty() || *near.begin() == ".." ? whole.string() : near.string();
}

void append_number(Bytes& file, std::size_t number) {
    file.resize(file.size() + sizeof(std::int32_t));
    put_little_endian(static_cast<std::int32_t>(number), file.data() + file.size() - sizeof(std::int32_t));
}

void append_text(Bytes& file, std::string_view text) {
    const auto bytes = std::as_bytes(std::span(text));
    file.insert(file.end(), bytes.begin(), bytes.end());
}

Bytes journal_bytes(const std::string& folder, std::span<const FileChange> changes) {
    Bytes file;
    append_text(file, signature);
    append_number(file, changes.size());
    for (const auto& change : changes) {
        const auto path = path_from(folder, change.path);
        append_number(file, path.size());
        append_text(file, path);
        append_number(file, change.content ? change.content->size() : static_cast<std::size_t>(removed));
        if (change.content) file.insert(file.end(), change.content->begin(), change.content->end());
    }
    return file;
}

std::optional<std::int32_t> take_number(ByteView& rest) {
    if (rest.size() < sizeof(std::int32_t)) return std::nullopt;
    const auto number = get_little_endian<std::int32_t>(rest.data());
    rest = rest.subspan(sizeof(std::int32_t));
    return number;
}

std::optional<ByteView> take_bytes(ByteView& rest, std::int32_t count) {
    if (count < 0 || static_cast<std::size_t>(count) > rest.size()) return std::nullopt;
    const auto taken = rest.first(static_cast<std::size_t>(count));
    rest = rest.subspan(taken.size());
    return taken;
}

std::optional<FileChange> take_change(ByteView& rest, const std::string& folder) {
    const auto path_length = take_number(rest);
    const auto path = path_length ? take_bytes(rest, *path_length) : std::nullopt;
    const auto length = path ? take_number(rest) : std::nullopt;
    if (!length || path->empty()) return std::nullopt;
    FileChange change{(std::filesystem::path(folder) / characters_of(*path)).string(), std::nullopt};
    if (*length == removed) return change;
    const auto content = take_bytes(rest, *length);
    if (!content) return std::nullopt;
    change.content.emplace(content->begin(), content->end());
    return change;
}

void remove_file(const std::string& path) {
    std::error_code error;
    std::filesystem::remove(path, error);
    flush_folder(folder_of(path));
}

bool is_there(const std::string& path) {
    std::error_code error;
    return std::filesystem::exists(path, error);
}

// Those that could not be made.
std::vector<FileChange> made_again(std::span<const FileChange> changes) {
    std::vector<FileChange> left;
    for (const auto& change : changes) {
        if (!change.content) remove_file(change.path);
        const bool is_made =
            change.content ? save_atomically(change.path, *change.content) : !is_there(change.path);
        if (!is_made) left.push_back(change);
    }
    return left;
}

// Puts what is staged in place, in the order of the changes; answers whether all of it is.
bool put_in_place(std::span<const FileChange> changes, std::vector<StagedSave>& staged) {
    auto next = staged.begin();
    bool is_all = true;
    std::set<std::string> folders;
    for (const auto& change : changes) {
        if (!change.content) {
            remove_file(change.path);
            continue;
        }
        is_all = next->put_in_place() && is_all;
        folders.insert((next++)->folder());
    }
    for (const auto& folder : folders) flush_folder(folder);
    return is_all;
}

} // namespace

std::vector<FileChange> read_journal(ByteView journal, const std::string& folder) {
    const auto head = std::as_bytes(std::span(signature));
    if (journal.size() < head.size() || !std::equal(head.begin(), head.end(), journal.begin())) return {};
    auto rest = journal.subspan(head.size());
    const auto count = take_number(rest);
    std::vector<FileChange> changes;
    while (!rest.empty()) {
        auto change = take_change(rest, folder);
        if (!change) return {};
        changes.push_back(std::move(*change));
    }
    if (!count || static_cast<std::size_t>(*count) != changes.size()) return {};
    return changes;
}

JointSave save_jointly(const std::string& journal, std::span<const FileChange> changes) {
    if (finish_joint_save(journal) == LeftChanges::wait) return JointSave::refused;
    std::vector<StagedSave> staged;
    for (const auto& change : changes) {
        if (!change.content) continue;
        auto save = StagedSave::write(change.path, *change.content);
        if (!save) return JointSave::refused;
        staged.push_back(std::move(*save));
    }
    if (!save_atomically(journal, journal_bytes(folder_of(journal), changes))) return JointSave::refused;
    if (!put_in_place(changes, staged))
        return finish_joint_save(journal) == LeftChanges::wait ? JointSave::put_off : JointSave::done;
    remove_file(journal);
    return JointSave::done;
}

LeftChanges finish_joint_save(const std::string& journal) {
    const auto file = read_file(journal);
    if (!file) return LeftChanges::none;
    const auto folder = folder_of(journal);
    const auto changes = read_journal(*file, folder);
    if (changes.empty()) return LeftChanges::none;
    const auto left = made_again(changes);
    if (left.empty()) {
        remove_file(journal);
        return LeftChanges::made;
    }
    // What is made is not made again: the files may be worked on before the rest can be written.
    if (left.size() < changes.size()) save_atomically(journal, journal_bytes(folder, left));
    return LeftChanges::wait;
}

} // namespace wortlex
