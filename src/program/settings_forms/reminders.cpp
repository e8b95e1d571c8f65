#include "program/settings_forms/reminders.h"

namespace wortlex {
namespace {

constexpr std::string_view not_kept =
    "The reminders could not be written. Is the disk full, or the folder read-only?";

void save(const ReminderFlags& reminders, const std::string& data_folder, Prompts& prompts) {
    if (!SaveReminders(data_folder, reminders)) prompts.tell({.text = not_kept, .icon = Icon::error});
}

} // namespace

void show_all_reminders(ReminderFlags& reminders, const std::string& data_folder, Prompts& prompts) {
    if (prompts.ask_yes_no({.text = "Really Reset All Reminder Messages?", .icon = Icon::question}) !=
        Answer::yes)
        return;
    reminders = {};
    save(reminders, data_folder, prompts);
}

void remind_of_folders(ReminderFlags& reminders, const std::string& data_folder, Prompts& prompts) {
    if (reminders.folders != 1) return;
    const bool again = prompts.remind(
        {.text = "Choosing this option will cause the default folders (shown below) to change as you\n"
                 "load and save files from various locations. See the help file for further details.",
         .caption = " Wortlex Reminder Message! Auto Folder Saving.",
         .icon = Icon::information});
    reminders.folders = again ? 1 : 0;
    save(reminders, data_folder, prompts);
}

} // namespace wortlex
