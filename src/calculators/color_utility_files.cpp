#include "base/files.h"
#include "base/windows1252.h"
#include "calculators/color_sources.h"
#include "calculators/color_utility.h"

namespace wortlex {
namespace {

constexpr std::string_view question_caption = "Wortlex Message", error_caption = "Wortlex Error";

constexpr std::string_view table_filter = "Wortlex Color File (*.ldt)|*.ldt";
constexpr std::string_view text_filter = "Tab Delineated Text File (*.txt)|*.txt";
constexpr std::string_view picture_filter = "JPEG Bitmap File (*.jpg)|*.jpg";

constexpr std::string_view about_text = "This function requires a text file formated according\nto the "
                                        "Wortlex specifications (see Help file).\n\nDo you want to proceed "
                                        "with this function?";
constexpr std::string_view about_picture = "This function requires a JPG file formated according\nto the "
                                           "Wortlex specifications (see Help file).\n\nDo you want to "
                                           "proceed with this function?";
constexpr std::string_view copy_to_default =
    "Do you really want to copy this color set to the default Wortlex color data file?";
constexpr std::string_view reset_to_built_in =
    "Really reset the current values with the default values imbedded in Wortlex?";
constexpr std::string_view text_unreadable = "There was an error reading the file!";
constexpr std::string_view picture_unreadable = "Could not read JPG file!";
constexpr std::string_view not_written =
    "The color file could not be written. Is the disk full, or the folder read-only?";

constexpr std::size_t longest_text = std::size_t{1} << 20; // 400 lines are a fiftieth of it

} // namespace

bool ColorUtility::asked(std::string_view question) const {
    return desk_.prompts.ask_yes_no(
               {.text = question, .caption = question_caption, .icon = Icon::question}) == Answer::yes;
}

void ColorUtility::fail(std::string_view text) const {
    desk_.prompts.tell({.text = text, .caption = error_caption, .icon = Icon::error});
}

// A path that the record cannot spell goes in as it is: it is a remark, and nothing opens it again.
void ColorUtility::take_origin(const std::string& path) {
    work.author.assign(windows1252_from_utf8(path).value_or(path));
    work.version.assign("");
}

void ColorUtility::load_table() {
    const auto path = desk_.files.choose_to_open({table_filter, desk_.data_folder, {}, "ldt"});
    if (!path) return;
    if (!LoadColorTable(*path, work)) return fail(file_not_found);
    selected = 0;
}

void ColorUtility::load_text() {
    if (!asked(about_text)) return;
    const auto path = desk_.files.choose_to_open({text_filter, desk_.data_folder, {}, "txt"});
    if (!path) return;
    const auto file = read_file(*path, longest_text);
    if (!file) return fail(text_unreadable);
    const bool is_complete = read_color_text(characters_of(*file), work.rows);
    take_origin(*path);
    if (!is_complete) fail(text_unreadable);
}

void ColorUtility::load_picture() {
    if (!asked(about_picture)) return;
    const auto path = desk_.files.choose_to_open({picture_filter, desk_.data_folder, {}, "jpg"});
    if (!path) return;
    const auto pixels = desk_.pictures.load(*path);
    if (!pixels || !read_color_picture(*pixels, work.rows)) return fail(picture_unreadable);
    take_origin(*path);
}

void ColorUtility::save_table() {
    const auto path = desk_.files.choose_to_save({table_filter, desk_.data_folder, {}, "ldt"});
    if (path && !SaveColorTable(*path, work, desk_.clock.now())) fail(not_written);
}

void ColorUtility::save_default() {
    if (!asked(copy_to_default)) return;
    const auto path = find_data_file(desk_.data_folder, color_table_file);
    if (!SaveColorTable(path, work, desk_.clock.now())) return fail(not_written);
    backup_ = desk_.live = work;
}

// The third text belongs to the file, not to the colours.
void ColorUtility::reset() {
    if (!asked(reset_to_built_in)) return;
    const auto third_text = work.third_text;
    work = built_in_color_table();
    work.third_text = third_text;
    desk_.live = work;
}

} // namespace wortlex
