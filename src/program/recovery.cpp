#include "program/recovery.h"

#include "base/windows1252.h"
#include "program/program.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <set>
#include <utility>

namespace wortlex {
namespace {

// WlxWork.rcv is the work of now; with a number behind the name it was put aside, with another ending it
// cannot be read.
constexpr std::string_view work_name = "WlxWork";
constexpr std::string_view to_offer = ".rcv";
constexpr std::string_view damaged = ".damaged";

// Renames a file to the first number that is free, so that no work takes another's place. Where it then is.
std::string put_aside(const std::string& data_folder, const std::string& path, std::string_view ending) {
    std::error_code error;
    for (int number = 1;; ++number) {
        auto aside =
            data_folder + std::string(work_name).append("-").append(std::to_string(number)).append(ending);
        if (std::filesystem::exists(aside, error)) continue;
        std::filesystem::rename(path, aside, error);
        return error ? path : aside;
    }
}

// All that is to be offered: what broke off last, then what was put aside.
std::vector<std::string> left_work(const std::string& data_folder) {
    std::set<std::string> aside;
    std::error_code error;
    auto entry = std::filesystem::directory_iterator(data_folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const auto name = entry->path().filename().string();
        if (name.starts_with(std::string(work_name) + "-") && name.ends_with(to_offer))
            aside.insert(data_folder + name);
    }
    std::vector<std::string> work{work_path(data_folder)};
    if (!std::filesystem::exists(work.front(), error)) work.clear();
    work.insert(work.end(), aside.begin(), aside.end());
    return work;
}

// The head is text: what it is, the path and the stamp of the file, a line each. A path may hold anything but
// a line's end; one that does is left out, and the work comes back as that of a new document.
std::string head_of(DocumentKind kind, const DocumentFile& file) {
    const bool has_path = file.path.find('\n') == std::string::npos;
    const auto stamp = file.stamp.value_or(FileStamp{});
    return std::string(document_traits(kind).work_signature) + "\n" + (has_path ? file.path : "") + "\n" +
           std::to_string(file.stamp ? stamp.modified : 0) + " " + std::to_string(stamp.size) + "\n";
}

std::optional<std::string_view> take_line(std::string_view& text) {
    const auto end = text.find('\n');
    if (end == std::string_view::npos) return std::nullopt;
    const auto line = text.substr(0, end);
    text.remove_prefix(end + 1);
    return line;
}

std::optional<DocumentKind> kind_signed(const std::optional<std::string_view>& signature) {
    for (const auto kind : {DocumentKind::recipe, DocumentKind::session})
        if (signature == document_traits(kind).work_signature) return kind;
    return std::nullopt;
}

std::optional<FileStamp> stamp_from(std::string_view line) {
    FileStamp stamp;
    const auto* const end = line.data() + line.size();
    const auto first = std::from_chars(line.data(), end, stamp.modified);
    if (first.ec != std::errc() || first.ptr == end || stamp.modified == 0) return std::nullopt;
    if (std::from_chars(first.ptr + 1, end, stamp.size).ec != std::errc()) return std::nullopt;
    return stamp;
}

std::string question_about(const RecoveredWork& work, const BrewDocument& recipe) {
    const auto file = file_name(work.path);
    const auto title = utf8_from_windows1252(recipe.title.view());
    const auto name = !file.empty()   ? file
                      : title.empty() ? std::string(document_traits(work.kind).nameless)
                                      : title;
    return "Wortlex ended before your work on " + name +
           " was saved.\nDo you want to open it as it was? No discards it, Cancel asks again at the next "
           "start.";
}

constexpr std::string_view unkept_work =
    "The copy of your unsaved work could not be written. Is the disk full, or the folder read-only?\nUntil "
    "you save it, your work is lost if the program breaks off.";

void tell_damaged(const Program& program, const std::string& path, Prompts& prompts) {
    const auto kept = put_aside(program.data_folder, path, damaged);
    const auto text = "Unsaved work of an earlier run is damaged and cannot be opened.\nIt is kept as " +
                      file_name(kept) + " in the brewery folder.";
    prompts.tell({.text = text, .icon = Icon::warning});
}

// A session that was kept before a recipe was picked has none yet.
bool holds_anything(const BrewDocument& recipe) {
    return !(recipe.title.empty() && recipe.malts.empty() && recipe.hops.empty() && recipe.extras.empty());
}

// Whether the work of one file is the live document now.
bool offer(Program& program, const std::string& path, Prompts& prompts) {
    const auto current = work_path(program.data_folder);
    const auto work = ReadWork(path);
    LiveDocument found;
    if (!work || !restore_work(found, *work, program.settings)) {
        tell_damaged(program, path, prompts);
        return false;
    }
    const auto question = question_about(*work, found.recipe);
    const auto answer =
        prompts.ask_yes_no_cancel({.text = question, .icon = Icon::question, .safe = Answer::yes});
    std::error_code error;
    if (answer == Answer::cancel && path == current) put_aside(program.data_folder, path, to_offer);
    if (answer == Answer::no) std::filesystem::remove(path, error);
    if (answer != Answer::yes) return false;
    if (path != current) std::filesystem::rename(path, current, error);
    program.document = std::move(found);
    return true;
}

} // namespace

std::string work_path(const std::string& data_folder) {
    return data_folder + std::string(work_name).append(to_offer);
}

Bytes kept_work(const DocumentImage& image, const DocumentFile& file) {
    const auto head = head_of(image.kind(), file);
    const auto head_bytes = std::as_bytes(std::span(head));
    Bytes work(head_bytes.begin(), head_bytes.end());
    const auto document = document_bytes(image);
    work.insert(work.end(), document.begin(), document.end());
    return work;
}

bool KeepWork(const std::string& data_folder, const DocumentImage& image, const DocumentFile& file) {
    return save_atomically(work_path(data_folder), kept_work(image, file));
}

void DropWork(const std::string& data_folder) {
    std::error_code error;
    std::filesystem::remove(work_path(data_folder), error);
}

std::optional<RecoveredWork> ReadWork(const std::string& path) {
    const auto file = read_file(path);
    if (!file) return std::nullopt;
    const auto content = characters_of(*file);
    std::string_view rest = content;
    const auto kind = kind_signed(take_line(rest));
    if (!kind) return std::nullopt;
    const auto document_path = take_line(rest);
    const auto stamp = document_path ? take_line(rest) : std::nullopt;
    if (!stamp) return std::nullopt;
    const auto document = std::as_bytes(std::span(rest));
    return RecoveredWork{*kind, std::string(*document_path), stamp_from(*stamp),
                         Bytes(document.begin(), document.end())};
}

bool restore_work(LiveDocument& live, const RecoveredWork& work, const Settings& settings) {
    const auto result = read_into(live, work.kind, work.document, settings);
    if (!is_sound(result)) return false;
    if (work.path.empty()) live.session.has_recipe = holds_anything(live.recipe) ? 1 : 0;
    live.file = {.path = work.path,
                 .loaded_from_file = !work.path.empty(),
                 .incomplete = result != LoadResult::loaded,
                 .recovered = true,
                 .stamp = work.stamp};
    return true;
}

void tell_unkept_work(Program& program, Prompts& prompts) {
    if (std::exchange(program.told_of_unkept_work, true)) return;
    prompts.tell({.text = unkept_work, .icon = Icon::warning});
}

bool offer_work(Program& program, Prompts& prompts) {
    const auto left = left_work(program.data_folder);
    return std::any_of(left.begin(), left.end(),
                       [&](const std::string& path) { return offer(program, path, prompts); });
}

} // namespace wortlex
