// The dialogs of the system settings.
#pragma once

#include "program/program.h"

#include <QWidget>

namespace wortlex {

/// What the dialogs ask for. The colour utility is a window of its own, opened by `edit_colours` over the one
/// given.
struct SettingsPorts {
    Program& program;
    Files& files;
    Prompts& prompts;
    std::function<void(QWidget*)> edit_colours;
};

/// Runs the dialogs until the settings are accepted or left.
void edit_system_settings(const SettingsPorts& ports, QWidget* owner);

} // namespace wortlex
