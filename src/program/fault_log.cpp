#include "program/fault_log.h"

#include "base/files.h"
#include "program/user_folders.h"
#include "program/version.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <filesystem>
#include <vector>

namespace wortlex {
namespace {

constexpr std::size_t longest_line = 600;
constexpr std::size_t longest_ending = 5; // with its point

std::string time_now() {
    const std::time_t now = std::time(nullptr);
    std::tm local = {};
    std::array<char, sizeof "2026-01-01 00:00"> text = {};
    if (::localtime_r(&now, &local) == nullptr) return {};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", &local)};
}

bool is_letter_or_digit(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

// "*.rec" for a file of that ending; of any other words nothing.
std::string kind_of(std::string_view own) {
    const auto ending = std::filesystem::path(own).extension().string();
    const bool is_plain = ending.size() > 1 && ending.size() <= longest_ending &&
                          std::all_of(ending.begin() + 1, ending.end(), is_letter_or_digit);
    return is_plain ? "*" + ending : "...";
}

// A path begins with a slash that follows no letter; where it ends nobody can tell.
std::string without_paths(std::string line) {
    for (std::size_t at = line.find('/'); at != std::string::npos; at = line.find('/', at + 1))
        if (at == 0 || !is_letter_or_digit(line[at - 1])) return line.substr(0, at) + "...";
    return line;
}

// Only the kind of a file that the words do not name is told behind them.
std::string without_own(std::string text, std::string_view own) {
    if (own.empty()) return text;
    const auto at = text.find(own);
    if (at == std::string::npos) return text + " (" + kind_of(own) + ")";
    return text.replace(at, own.size(), kind_of(own));
}

std::string line_of(std::string_view what, std::string_view own) {
    auto text = without_paths(without_own(std::string(what), own));
    std::replace_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return time_now() + "  " + program_version + "  " + text.substr(0, longest_line) + "\n";
}

// Its newest whole lines.
std::string bounded(std::string log) {
    if (log.size() <= largest_log) return log;
    const auto end_of_line = log.find('\n', log.size() - largest_log);
    return log.substr(end_of_line + 1);
}

std::string newest_first(const std::string& log) {
    std::string turned;
    for (std::size_t begin = 0; begin < log.size();) {
        const auto end = std::min(log.find('\n', begin), log.size() - 1);
        turned.insert(0, log, begin, end - begin + 1);
        begin = end + 1;
    }
    return turned;
}

} // namespace

void FaultLog::note(std::string_view what, std::string_view own) const {
    if (path_.empty()) return;
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(path_).parent_path(), error);
    const auto log = bounded(text() + line_of(what, own));
    save_atomically(path_, std::as_bytes(std::span(log)));
}

std::string FaultLog::text() const {
    return characters_of(read_file(path_, 2 * largest_log).value_or(Bytes()));
}

FaultLog user_log() {
    const auto folder = user_state_folder();
    return FaultLog(folder.empty() ? folder : folder + "wortlex/wortlex.log");
}

void NotedPrompts::tell(const Message& message) {
    const bool is_fault = message.icon == Icon::error || message.icon == Icon::warning;
    if (is_fault && !message.is_advice) log_.note(message.text, message.own);
    prompts_.tell(message);
}

void log_form(Form& form, const FaultLog& log, Clipboard& clipboard) {
    auto& rows = form.group();
    rows.shown("log",
               [&log] {
                   const auto text = log.text();
                   return text.empty() ? "Nothing has gone wrong." : newest_first(text);
               })
        .label("&What went wrong")
        .lines();
    auto& buttons = form.group();
    buttons.button("copy", "&Copy All", [&log, &clipboard] { clipboard.put_text(log.text()); });
    buttons.button("help", "Help", nullptr);
}

} // namespace wortlex
