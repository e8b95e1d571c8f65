#include "program/recovery.h"

#include "base/windows1252.h"
#include "program/program.h"

#include <charconv>
#include <filesystem>
#include <utility>

namespace wortlex {
namespace {

constexpr std::string_view work_file = "WlxWork.rcv";
constexpr std::string_view put_aside = ".later"; // behind the name of work that is to be offered again

std::string path_in(const std::string& data_folder) {
    return data_folder + std::string(work_file);
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

} // namespace

bool KeepWork(const std::string& data_folder, const DocumentImage& image, const DocumentFile& file) {
    const auto head = head_of(image.kind(), file);
    const auto head_bytes = std::as_bytes(std::span(head));
    Bytes work(head_bytes.begin(), head_bytes.end());
    const auto document = document_bytes(image);
    work.insert(work.end(), document.begin(), document.end());
    return save_atomically(path_in(data_folder), work);
}

void DropWork(const std::string& data_folder) {
    std::error_code error;
    std::filesystem::remove(path_in(data_folder), error);
}

std::optional<RecoveredWork> FindWork(const std::string& data_folder) {
    const auto file = read_file(path_in(data_folder));
    if (!file) return std::nullopt;
    std::string content;
    for (const auto byte : *file) content += static_cast<char>(byte);
    std::string_view rest = content;
    const auto kind = kind_signed(take_line(rest));
    if (!kind) return std::nullopt;
    const auto path = take_line(rest);
    const auto stamp = path ? take_line(rest) : std::nullopt;
    if (!stamp) return std::nullopt;
    const auto document = std::as_bytes(std::span(rest));
    return RecoveredWork{*kind, std::string(*path), stamp_from(*stamp),
                         Bytes(document.begin(), document.end())};
}

bool restore_work(LiveDocument& live, const RecoveredWork& work, const Settings& settings) {
    const auto result = read_into(live, work.kind, work.document, settings);
    if (!is_sound(result)) return false;
    live.file = {.path = work.path,
                 .loaded_from_file = !work.path.empty(),
                 .incomplete = result == LoadResult::incomplete,
                 .recovered = true,
                 .stamp = work.stamp};
    return true;
}

bool offer_work(Program& program, Prompts& prompts) {
    const auto path = path_in(program.data_folder);
    const auto aside = path + std::string(put_aside);
    std::error_code error;
    if (!std::filesystem::exists(path, error)) std::filesystem::rename(aside, path, error);
    const auto work = FindWork(program.data_folder);
    if (!work) return false;
    LiveDocument found;
    if (!restore_work(found, *work, program.settings)) {
        DropWork(program.data_folder);
        return false;
    }
    const auto question = question_about(*work, found.recipe);
    const auto answer = prompts.ask_yes_no_cancel({.text = question, .icon = Icon::question});
    if (answer == Answer::yes) {
        program.document = std::move(found);
        return true;
    }
    if (answer == Answer::cancel) std::filesystem::rename(path, aside, error);
    DropWork(program.data_folder);
    return false;
}

} // namespace wortlex
