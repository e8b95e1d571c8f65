// What every window is handed: the program's state, and whom it asks, shows and tells.
#pragma once

#include "base/ports/clipboard.h"
#include "base/ports/file_dialogs.h"
#include "base/ports/prompts.h"
#include "base/ports/surface.h"
#include "page/page.h"
#include "program/commands.h"

namespace wortlex {

struct Program;

struct WindowPorts {
    Program& program;
    Prompts& prompts;
    Files& files;
    PageDesk& pages;
    Clipboard& clipboard;
    Easel& easel;
    Pictures& pictures;
    CommandTable* commands = nullptr; ///< the main window's, which puts them here
};

} // namespace wortlex
