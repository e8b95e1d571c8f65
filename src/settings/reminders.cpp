#include "settings/reminders.h"

namespace wortlex {
namespace {

constexpr std::string_view not_kept =
    "The reminders could not be written. Is the disk full, or the folder read-only?";

void save(const ReminderFlags& reminders, const std::string& data_folder, Prompts& prompts) {
    if (!SaveReminders(data_folder, reminders)) prompts.tell({.text = not_kept, .icon = Icon::error});
}

// Of one chart, or of both.
struct PictureWords {
    std::string_view caption;
    std::string_view before; ///< the names
    std::string_view transfer;
    std::string_view naming;
};

constexpr std::string_view one_to_transfer =
    "If the HTML file is transferred to a web-site, this file will also need to be uploaded\n"
    "to the site, in the same directory as the HTML file.";

constexpr PictureWords mash_words = {
    " Wortlex Reminder Message! JPG Filename in HTML Export.",
    "Because you have chosen to generate a Mash Chart with this HTML file, the\n"
    "Mash Chart was exported as a separate JPG file named:",
    one_to_transfer,
    "Wortlex will always name the jpg file with the same filename as the recipe or\n"
    "brewing session, with \"_mash\" appended to the filename and with the extension \".jpg\""};

constexpr PictureWords water_words = {
    " Wortlex Reminder Message! JPG Filenames in HTML Export.",
    "Because you have chosen to generate a Water Profile Chart with this HTML file, the\n"
    "Water Profile Chart was exported as a separate JPG file named:",
    one_to_transfer,
    "Wortlex will always name the jpg file with the same filename as the recipe or\n"
    "brewing session, with \"_water\" appended to the filename and with the extension \".jpg\""};

constexpr PictureWords words_of_both = {
    " Wortlex Reminder Message! JPG Filenames in HTML Export.",
    "Because you have chosen to generate a Mash Chart and a Water Profile Chart\n"
    "with this HTML file, the Mash Chart and Water Profile Chart were exported to\n"
    "seperate JPG files named:",
    "If the HTML file is transferred to a web-site, these files will also need to be uploaded\n"
    "to the site, in the same directory as the HTML file.",
    "Wortlex will always name the jpg files with the same filename as the brewing session,\n"
    "with \"_mash\" and \"_water\" appended to the filename(s) and with the extension \".jpg\""};

bool remind(const PictureWords& words, const std::string& names, Prompts& prompts) {
    const auto text = std::string(words.before) + "\n\n" + names + "\n\n" + std::string(words.transfer) +
                      "\n\n" + std::string(words.naming);
    return prompts.remind({.text = text, .caption = words.caption, .icon = Icon::information});
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

void remind_of_pictures(const ChartPictureNames& names, ReminderFlags& reminders,
                        const std::string& data_folder, Prompts& prompts) {
    auto& mash = reminders.mash_chart_name;
    auto& water = reminders.water_chart_name;
    const bool has_mash = !names.mash.empty(), has_water = !names.water.empty();
    if (!(has_mash && mash == 1) && !(has_water && water == 1)) return;
    const bool has_both = has_mash && has_water;
    const auto& words = has_both ? words_of_both : has_mash ? mash_words : water_words;
    if (remind(words, names.mash + (has_both ? "\n" : "") + names.water, prompts)) return;
    if (has_mash) mash = 0;
    if (has_water) water = 0;
    save(reminders, data_folder, prompts);
}

} // namespace wortlex
