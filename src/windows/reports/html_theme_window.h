// The theme of HTML pages.
#pragma once

#include "program/program.h"

#include <QWidget>

namespace wortlex {

/// Edits the live theme.
void edit_html_theme(Program& program, Files& files, Prompts& prompts, QWidget* owner);

} // namespace wortlex
