#include "program/recovery.h"

#include "base/windows1252.h"
#include "program/program.h"

#include <charconv>
#include <filesystem>

namespace wortlex {
namespace {

constexpr std::string_view work_file = "WlxWork.rcv";
constexpr std::string_view put_aside = ".later"; // behind the name of work that is to be offered again
constexpr std::string_view signature = "Wortlex unsaved recipe 1\n";

std::string path_in(const std::string& data_folder) {
    return data_folder + std::string(work_file);
}

// The head is text: the path and the stamp of the file, a line each. A path may hold anything but a line's
// end; one that does is left out, and the work comes back as that of a new recipe.
std::string head_of(const DocumentFile& file) {
    const bool has_path = file.path.find('\n') == std::string::npos;
    const auto stamp = file.stamp.value_or(FileStamp{});
    return std::string(signature) + (has_path ? file.path : "") + "\n" +
           std::to_string(file.stamp ? stamp.modified : 0) + " " + std::to_string(stamp.size) + "\n";
}

std::optional<std::string_view> take_line(std::string_view& text) {
    const auto end = text.find('\n');
    if (end == std::string_view::npos) return std::nullopt;
    const auto line = text.substr(0, end);
    text.remove_prefix(end + 1);
    return line;
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
    const auto name = !file.empty() ? file : title.empty() ? std::string("a new recipe") : title;
    return "Wortlex ended before your work on " + name +
           " was saved.\nDo you want to open it as it was? No discards it, Cancel asks again at the next "
           "start.";
}

} // namespace

bool KeepWork(const Program& program) {
    const auto head = head_of(program.recipe_file);
    const auto head_bytes = std::as_bytes(std::span(head));
    Bytes file(head_bytes.begin(), head_bytes.end());
    const auto recipe = recipe_bytes(program.document);
    file.insert(file.end(), recipe.begin(), recipe.end());
    return save_atomically(path_in(program.data_folder), file);
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
    if (!rest.starts_with(signature)) return std::nullopt;
    rest.remove_prefix(signature.size());
    const auto path = take_line(rest);
    const auto stamp = path ? take_line(rest) : std::nullopt;
    if (!stamp) return std::nullopt;
    const auto recipe = std::as_bytes(std::span(rest));
    return RecoveredWork{std::string(*path), stamp_from(*stamp), Bytes(recipe.begin(), recipe.end())};
}

bool restore_work(Program& program, const RecoveredWork& work) {
    auto document = new_document(program.settings, program.settings.default_schedule);
    const auto result = read_recipe(work.recipe, document, program.settings);
    if (result == LoadResult::damaged) return false;
    program.document = std::move(document);
    program.water_to_grain = 0;
    program.recipe_file = {.path = work.path,
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
    auto recipe = new_document(program.settings, program.settings.default_schedule);
    if (read_recipe(work->recipe, recipe, program.settings) == LoadResult::damaged) {
        DropWork(program.data_folder);
        return false;
    }
    const auto question = question_about(*work, recipe);
    const auto answer = prompts.ask_yes_no_cancel({.text = question, .icon = Icon::question});
    if (answer == Answer::yes) return restore_work(program, *work);
    if (answer == Answer::cancel) std::filesystem::rename(path, aside, error);
    DropWork(program.data_folder);
    return false;
}

} // namespace wortlex
