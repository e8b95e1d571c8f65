#include "program/settings_forms/settings_session.h"

#include "base/files.h"

namespace wortlex {
namespace {

constexpr std::string_view settings_filter = "System Setting File (*.wxt)|*.wxt";
constexpr std::string_view overwrite_default = "Really Overwrite the Default Misc. System Settings?";
constexpr std::string_view also_default =
    "Do you also want to overwrite the Default System Settings with these settings?";
constexpr std::string_view not_written =
    "The settings could not be written. Is the disk full, or the folder read-only?";
constexpr std::string_view only_for_now = "Please note that these setting will only temporarily overwrite "
                                          "your current default settings until the application "
                                          "is closed or until new settings are loaded.\n\nTo save these "
                                          "settings as the permanent settings you must use the "
                                          "'Save As Default' option before closing the application.";
constexpr std::string_view no_settings = " is damaged and cannot be loaded. The settings stay as they "
                                         "are.\nChoose a file that was saved by Save To "
                                         "File.";
constexpr std::string_view short_settings =
    "The settings file ended early. What is missing stays as it is now.";

} // namespace

SettingsSession::SettingsSession(const SettingsDesk& desk)
    : brewer_name(desk.files.settings.brewer_name), assistant_name(desk.files.settings.assistant_name),
      desk_(desk), saved_files_(desk.files), saved_working_(desk.working), saved_folders_(desk.folders) {}

// The image as the dialog shows it: the names from its fields, the colours from where they were edited.
void SettingsSession::take_over() {
    image().brewer_name = brewer_name;
    image().assistant_name = assistant_name;
    ApplyDialogSettings(image(), desk_.working);
    desk_.notices.tell(Change::settings);
}

void SettingsSession::accept() {
    take_over();
}

void SettingsSession::cancel() {
    desk_.files = saved_files_;
    desk_.working = saved_working_;
    desk_.folders = saved_folders_;
    ApplySettings(image(), desk_.working, false);
    desk_.notices.tell(Change::settings);
}

bool SettingsSession::write_system_files() {
    take_over();
    return SaveSystemFiles(desk_.data_folder, desk_.files);
}

void SettingsSession::save_as_default(Prompts& prompts) {
    if (prompts.ask_yes_no({.text = overwrite_default, .icon = Icon::question}) != Answer::yes) return;
    if (!write_system_files() || !SaveFolders(desk_.data_folder, desk_.folders))
        prompts.tell({.text = not_written, .icon = Icon::error});
}

void SettingsSession::load(Files& files, Prompts& prompts) {
    const auto path = files.choose_to_open({settings_filter, desk_.data_folder, {}, "wxt"});
    if (!path) return;
    const auto load = LoadSettingsFile(*path, image());
    if (load == SettingsLoad::not_found)
        return prompts.tell({.text = file_not_found, .icon = Icon::error, .own = *path});
    if (load == SettingsLoad::damaged) {
        const auto name = file_name(*path);
        const auto text = name + std::string(no_settings);
        return prompts.tell({.text = text, .icon = Icon::error, .own = name});
    }
    ApplySettings(image(), desk_.working, true);
    desk_.notices.tell(Change::settings);
    if (load == SettingsLoad::incomplete)
        prompts.tell({.text = short_settings, .icon = Icon::warning, .own = *path});
    prompts.tell({.text = only_for_now, .icon = Icon::information});
}

void SettingsSession::save(Files& files, Prompts& prompts) {
    const auto path = files.choose_to_save({settings_filter, desk_.data_folder, {}, "wxt"});
    if (!path) return;
    auto written = image();
    written.brewer_name = brewer_name;
    written.assistant_name = assistant_name;
    written.foreground = desk_.working.foreground;
    written.background = desk_.working.background;
    if (!SaveSettingsFile(*path, written)) return prompts.tell({.text = not_written, .icon = Icon::error});
    if (prompts.ask_yes_no({.text = also_default, .icon = Icon::question}) != Answer::yes) return;
    if (!write_system_files()) prompts.tell({.text = not_written, .icon = Icon::error});
}

void system_settings_form(Form& form, SettingsSession& session, const SettingsButtons& buttons) {
    auto& brewers = form.group("Brewers");
    brewers.text("brewer", session.brewer_name).label("&Brewer(s) Name:").limit(252).width(34);
    brewers.text("assistant", session.assistant_name).label("&Asst. Brewer(s) Name:").limit(252).width(34);
    brewers.choice("style_book", session.image().style_book, {"BJCP", "AHA (prior to BJCP adoption)"})
        .codes({1, 0})
        .look(ChoiceRow::Look::down)
        .label("Default Style Guidelines:");
    brewers.choice("session_date", session.image().new_session_date, {"Today", "Tomorrow"})
        .label("Default New Brewing Session Date:");
    auto& files = form.group("Files");
    files.stack_buttons();
    files.button("load", "&Load From File", buttons.load);
    files.button("save", "Save &To File", buttons.save);
    files.button("save_as_default", "&Save As Default", buttons.save_as_default);
    form.group().button("help", "Help", buttons.help);
    form.next_column();
    auto& sections = form.group("Sections");
    sections.stack_buttons();
    sections.button("measures", "&Measurements, Sizes, Precision", buttons.measures);
    sections.button("mash_system", "Mash System, E&vaporation", buttons.mash);
    sections.button("efficiency", "Brewhouse &Efficiency", buttons.efficiency);
    sections.button("hops", "&Hop Calculations, Utilization and Storage", buttons.hops);
    sections.button("colour", "Beer and Malt &Color", buttons.colour);
    sections.button("gauges", "&Instrument Calibration", buttons.gauges);
    sections.button("competition", "Competition &Form Information", buttons.competition);
    sections.button("screen", "System Colors, Bitmaps, Art&work", buttons.screen);
    sections.button("printer", "&Printer, Miscellaneous", buttons.printer);
    sections.button("folders", "&Default File Folders", buttons.folders);
    form.on_accept([&session] { session.accept(); });
    form.on_cancel([&session] { session.cancel(); });
}

} // namespace wortlex
