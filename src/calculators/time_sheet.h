// The Time Sheet: a stopwatch with a running log. Its last line runs along while it is running and becomes an
// event with the comment that is put on it.
#pragma once

#include "base/ports/clock.h"
#include "base/ports/file_dialogs.h"
#include "base/ports/prompts.h"
#include "calculators/time_line.h"
#include "forms/form.h"
#include "page/page.h"
#include "settings/system_files.h"

namespace wortlex {

/// What the sheet asks and tells. All must outlive it.
struct TimeSheetDesk {
    std::string data_folder; ///< where an unsaved time line is kept
    FolderSet& folders;
    Files& files;
    Prompts& prompts;
    const Clock& clock;
    /// Asks for a comment (Windows-1252), given the one that there is; nothing if the user leaves it.
    std::function<std::optional<std::string>(std::string_view comment)> ask_comment;
    /// Of the open document, UTF-8; empty where there is none.
    std::function<std::string()> title;
};

/// Whether a time line was left that was never saved.
bool is_time_line_kept(const std::string& data_folder);

class TimeSheet {
public:
    explicit TimeSheet(TimeSheetDesk desk) : desk_(std::move(desk)) {}

    /// Offers the time line that a broken run or a closed window left.
    void offer_kept();

    void start();
    void stop(); ///< asks first
    /// To be called about once a second.
    void tick();
    /// Puts a comment on the selected line; on the live one it is the event, at the moment of the call.
    void comment();
    /// Takes the selected line away; not while it is running.
    void erase();
    void save();
    void load();
    /// Whether the window may close: asks what must be asked.
    bool may_close();

    bool is_running() const { return is_running_; }
    bool may_start() const;
    std::size_t line_count() const;
    /// The columns of a line: clock time, running time, comment in UTF-8.
    std::string cell(std::size_t line, std::size_t column) const;
    /// The running time for the clock face.
    std::string face() const;
    const TimeLine& line() const { return line_; }

    std::int32_t selected = -1; ///< line; -1: none

private:
    std::int32_t now() const;
    std::int32_t base() const;
    bool is_full() const;
    bool is_live(std::size_t line) const { return is_running_ && line == line_.entries.size(); }
    void begin_live_line();
    void add_event(std::int32_t moment, std::string_view comment);
    void changed();
    void forget_kept();
    FileChoice choice(std::string suggested_name) const;
    std::string suggested_name() const;
    bool store();
    /// Asks about an unsaved time line; true if it is saved, or may be dropped: the caller forgets it then.
    bool may_drop();

    TimeSheetDesk desk_;
    TimeLine line_;           ///< events only
    std::int32_t latest_ = 0; ///< what the live line shows
    bool is_running_ = false;
    bool is_held_ = false; ///< the live line stands still
    bool is_loaded_ = false;
    bool is_modified_ = false;
    bool could_keep_ = true; ///< the last time
};

struct TimeSheetActions {
    std::function<void()> print;
    std::function<void()> help;
    std::function<void()> close;
};

/// The sheet's buttons and its list; `sheet` must outlive the form.
void time_sheet_form(Form& form, TimeSheet& sheet, TimeSheetActions actions = {});

PrintRequest time_line_printout(const TimeLine& line, const Settings& settings);

} // namespace wortlex
