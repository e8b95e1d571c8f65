// Settings of printing, dates and names, and what windows and messages remember.
#pragma once

#include "base/ports/prompts.h"
#include "forms/form.h"
#include "settings/system_files.h"

namespace wortlex {

/// What acts at once, whatever becomes of the dialog.
struct PrinterSettingsButtons {
    std::function<void()> show_all_reminders, reset_positions, help;
};

/// Asks, and forgets where every window stood, on the disk too; whether it did. The caller puts the windows
/// that are open where they belong.
bool reset_window_positions(ToolPositions& positions, const std::string& data_folder, Prompts& prompts);

void printer_settings_form(Form& form, SystemSettings& image, const PrinterSettingsButtons& buttons);

} // namespace wortlex
