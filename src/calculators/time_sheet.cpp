#include "calculators/time_sheet.h"

#include "base/kept_work.h"
#include "base/windows1252.h"
#include "brewing/calendar.h"

#include <algorithm>
#include <utility>

namespace wortlex {
namespace {

constexpr std::string_view kept_file = "WlxTime.rcv";
constexpr std::string_view time_line_filter = "Time Line File (*.tml)|*.tml";
constexpr std::size_t most_lines = most_time_entries - 1; // the live one included

constexpr Message stop_question = {
    .text = "Are you sure you want to stop recording time increments and comments?", .icon = Icon::question};
constexpr Message unsaved_question = {
    .text = "The current time line has been modified!\nDo you want to save the changes?",
    .icon = Icon::question,
    .safe = Answer::yes};
constexpr Message kept_question = {
    .text = "A time line was left before it was saved.\nDo you want to go on with it? No discards it, Cancel "
            "asks again the next time.",
    .icon = Icon::question,
    .safe = Answer::yes};

std::string kept_path(const std::string& data_folder) {
    return data_folder + std::string(kept_file);
}

constexpr Message cannot_be_kept = {
    .text = "The time line cannot be kept against a crash: the data folder cannot be written.\nSave it when "
            "you stop.",
    .icon = Icon::warning};

} // namespace

bool is_time_line_kept(const std::string& data_folder) {
    return is_work_kept(kept_path(data_folder));
}

std::int32_t TimeSheet::now() const {
    return static_cast<std::int32_t>(desk_.clock.now());
}

std::int32_t TimeSheet::base() const {
    return line_.entries.empty() ? latest_ : line_.entries.front().moment;
}

bool TimeSheet::is_full() const {
    return line_count() >= most_lines;
}

bool TimeSheet::may_start() const {
    return !is_running_ && !is_loaded_ && !is_full();
}

std::size_t TimeSheet::line_count() const {
    return line_.entries.size() + (is_running_ ? 1 : 0);
}

std::string TimeSheet::cell(std::size_t line, std::size_t column) const {
    if (line >= line_count()) return {};
    const bool live = is_live(line);
    const std::int32_t moment = live ? latest_ : line_.entries[line].moment;
    if (column == 0) return clock_text(moment);
    if (column == 1) return running_text(base(), moment);
    return live ? std::string() : utf8_from_windows1252(line_.entries[line].comment.view());
}

std::string TimeSheet::face() const {
    if (is_running_) return running_text(base(), now());
    return running_text(base(), line_.entries.empty() ? base() : line_.entries.back().moment);
}

void TimeSheet::begin_live_line() {
    is_running_ = true;
    is_held_ = false;
    latest_ = now();
    selected = static_cast<std::int32_t>(line_.entries.size());
}

void TimeSheet::add_event(std::int32_t moment, std::string_view comment) {
    TimeEntry entry;
    entry.moment = moment;
    entry.comment.assign(comment);
    line_.entries.push_back(entry);
    changed();
}

// Kept at once: a brew day cannot be done again. Where that fails it is told, but not at every event.
void TimeSheet::changed() {
    if (line_.entries.empty()) return forget_kept();
    is_modified_ = true;
    const bool is_kept = save_atomically(kept_path(desk_.data_folder), time_line_bytes(line_));
    if (std::exchange(could_keep_, is_kept) && !is_kept) desk_.prompts.tell(cannot_be_kept);
}

void TimeSheet::forget_kept() {
    is_modified_ = false;
    forget_kept_work(kept_path(desk_.data_folder));
}

void TimeSheet::start() {
    if (!may_start()) return;
    if (line_.entries.empty()) {
        const auto moment = now();
        const auto comment = desk_.ask_comment("");
        if (!comment) return;
        add_event(moment, *comment);
    }
    begin_live_line();
}

void TimeSheet::tick() {
    if (!is_running_) return;
    selected = static_cast<std::int32_t>(line_.entries.size());
    if (!is_held_) latest_ = now();
}

void TimeSheet::comment() {
    const auto line = static_cast<std::size_t>(selected);
    if (selected < 0 || line >= line_count() || is_full()) return;
    const auto moment = now();
    const bool live = is_live(line);
    is_held_ = is_running_;
    const auto comment = desk_.ask_comment(live ? "" : line_.entries[line].comment.view());
    if (!comment) return;
    if (live) {
        add_event(moment, *comment);
        return begin_live_line();
    }
    line_.entries[line].comment.assign(*comment);
    changed();
}

void TimeSheet::erase() {
    const auto line = static_cast<std::size_t>(selected);
    if (is_running_ || selected < 0 || line >= line_.entries.size()) return;
    line_.entries.erase(line_.entries.begin() + selected);
    selected = line_.entries.empty() ? -1 : std::max(selected - 1, 0);
    is_loaded_ = is_loaded_ && !line_.entries.empty();
    changed();
}

void TimeSheet::stop() {
    if (!is_running_ || desk_.prompts.ask_yes_no(stop_question) != Answer::yes) return;
    is_running_ = false;
    selected = static_cast<std::int32_t>(line_.entries.size()) - 1;
}

FileChoice TimeSheet::choice(std::string suggested_name) const {
    return {.filter = time_line_filter,
            .folder = folder_path(desk_.folders, FolderKind::sessions),
            .suggested_name = std::move(suggested_name),
            .extension = "tml"};
}

// One that was saved keeps its name.
std::string TimeSheet::suggested_name() const {
    if (!line_.path.empty()) return file_name(std::string(line_.path.view()));
    const auto title = desk_.title();
    const auto name = (title.empty() ? "Time Line" : title) + " " +
                      short_date(desk_.clock.today(), DateFormat::year_month_day);
    return tame_file_name(name) + ".tml";
}

bool TimeSheet::store() {
    const auto path = desk_.files.choose_to_save(choice(suggested_name()));
    if (!path) return false;
    follow_user(desk_.folders, FolderKind::sessions, *path);
    auto saved = line_;
    saved.path.assign(*path);
    if (!save_or_tell(*path, time_line_bytes(saved), desk_.prompts)) return false;
    line_.path = saved.path;
    forget_kept();
    return true;
}

void TimeSheet::save() {
    if (!is_running_) store();
}

bool TimeSheet::may_drop() {
    if (!is_modified_) return true;
    const auto answer = desk_.prompts.ask_yes_no_cancel(unsaved_question);
    return answer == Answer::yes ? store() : answer == Answer::no;
}

void TimeSheet::load() {
    if (is_running_ || !may_drop()) return;
    const auto path = desk_.files.choose_to_open(choice({}));
    if (!path) return;
    follow_user(desk_.folders, FolderKind::sessions, *path);
    const auto file = read_file(*path, time_line_size);
    if (!file) return desk_.prompts.tell({.text = file_not_found, .icon = Icon::error, .own = *path});
    auto line = read_time_line(*file);
    if (!line) {
        const auto name = file_name(*path);
        const auto fault = name + " is damaged and cannot be loaded.";
        return desk_.prompts.tell({.text = fault, .icon = Icon::warning, .own = name});
    }
    if (is_modified_) forget_kept();
    line_ = std::move(*line);
    line_.path.assign(*path);
    is_loaded_ = true;
    selected = static_cast<std::int32_t>(line_.entries.size()) - 1;
}

// A sheet that stays open after all runs on.
bool TimeSheet::may_close() {
    if (is_running_ && desk_.prompts.ask_yes_no(stop_question) != Answer::yes) return false;
    if (!may_drop()) return false;
    is_running_ = false;
    if (is_modified_) forget_kept();
    return true;
}

void TimeSheet::offer_kept() {
    const auto path = kept_path(desk_.data_folder);
    const auto file = take_up_kept_work(path, time_line_size);
    if (!file) return;
    auto line = read_time_line(*file);
    if (!line || line->entries.empty()) return forget_kept();
    const auto answer = desk_.prompts.ask_yes_no_cancel(kept_question);
    if (answer == Answer::no) return forget_kept();
    if (answer == Answer::cancel) return put_off_kept_work(path);
    line_ = std::move(*line);
    is_modified_ = true;
    selected = static_cast<std::int32_t>(line_.entries.size()) - 1;
}

} // namespace wortlex
