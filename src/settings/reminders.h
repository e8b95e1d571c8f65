// The messages that a user may have waved away for good. What changes here is on the disk at once.
#pragma once

#include "base/ports/prompts.h"
#include "settings/system_files.h"

namespace wortlex {

/// Asks, and lets every reminder come again.
void show_all_reminders(ReminderFlags& reminders, const std::string& data_folder, Prompts& prompts);

/// Tells what folders that follow the user mean, unless that is no longer wanted.
void remind_of_folders(ReminderFlags& reminders, const std::string& data_folder, Prompts& prompts);

/// The picture files of the charts beside an HTML page, by name; empty: there is none.
struct ChartPictureNames {
    std::string mash;
    std::string water;
};

/// Tells that the pictures of a page are files of their own, unless that is no longer wanted, or there are
/// none.
void remind_of_pictures(const ChartPictureNames& names, ReminderFlags& reminders,
                        const std::string& data_folder, Prompts& prompts);

} // namespace wortlex
