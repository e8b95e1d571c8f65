// The system settings while their dialog is open: what OK, Cancel and the disk buttons do.
#pragma once

#include "base/ports/file_dialogs.h"
#include "base/ports/notice_board.h"
#include "base/ports/prompts.h"
#include "forms/form.h"
#include "settings/settings.h"
#include "settings/system_files.h"

namespace wortlex {

/// What the dialogs work on: the images, as they go to the disk, and the working values, which the program
/// reads. The dialogs edit the image; only the colours of the screen live in the working values while they
/// are edited. What reaches the working values is told.
struct SettingsDesk {
    SystemFiles& files;
    Settings& working;
    FolderSet& folders;
    std::string data_folder;
    NoticeBoard& notices;
};

/// Opened with the dialog. Its end is `accept` or `cancel`, whatever the dialogs below it did.
class SettingsSession {
public:
    explicit SettingsSession(const SettingsDesk& desk);

    SystemSettings& image() { return desk_.files.settings; }

    /// For the run of the program: no file is written.
    void accept();
    /// Everything is as it was when the dialog opened.
    void cancel();
    /// Asks; writes settings, competition data and folders.
    void save_as_default(Prompts& prompts);
    /// Reads a settings file over the image and puts it to work until the program ends. The names in the open
    /// dialog stay.
    void load(Files& files, Prompts& prompts);
    /// Writes the image to a settings file, and asks whether it is to be the default too. The
    /// folders are not written.
    void save(Files& files, Prompts& prompts);

    Text<255> brewer_name; ///< as the dialog shows them
    Text<255> assistant_name;

private:
    void take_over();
    bool write_system_files();

    SettingsDesk desk_;
    SystemFiles saved_files_;
    Settings saved_working_;
    FolderSet saved_folders_;
};

/// The buttons of the dialog that open others.
struct SettingsButtons {
    std::function<void()> measures, mash, efficiency, hops, colour, gauges, competition, screen, printer,
        folders;
    std::function<void()> save_as_default, load, save, help;
};

void system_settings_form(Form& form, SettingsSession& session, const SettingsButtons& buttons);

} // namespace wortlex
