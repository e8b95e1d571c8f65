// The folders that file dialogs start in.
#pragma once

#include "base/ports/prompts.h"
#include "forms/form.h"
#include "settings/system_files.h"

namespace wortlex {

struct FolderSettingsDesk {
    FolderSet& folders;
    ReminderFlags& reminders;
    std::string data_folder;
    Prompts& prompts;
};

/// Lets the user choose a folder of a kind. One too long for its field is refused with a word.
void browse_folder(FolderSet& folders, FolderKind kind, Prompts& prompts);

void folder_settings_form(Form& form, const FolderSettingsDesk& desk, std::function<void()> help = nullptr);

} // namespace wortlex
