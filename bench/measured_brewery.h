// A program to be measured, that asks nobody and keeps nothing.
#pragma once

#include "base/ports/quiet_prompts.h"
#include "desktop/picture_easel.h"
#include "desktop/print_preview.h"
#include "desktop/system_ports.h"
#include "jpeg/jpeg_pictures.h"
#include "program/program.h"
#include "program/window_ports.h"

namespace wortlex {

struct CarelessPrompts : QuietPrompts {
    Answer ask_yes_no_cancel(const Message&) override { return Answer::no; }
};

struct MeasuredBrewery {
    SystemSettings image = WriteDefaultSettings();
    Program program;
    CarelessPrompts prompts;
    FileDialogs files;
    SystemClipboard clipboard;
    PictureEasel easel;
    JpegPictures pictures;
    PreviewDesk pages{files, prompts, places(program), program.folders, program.data_folder};

    MeasuredBrewery() { program.settings = settings_from(image); }
    WindowPorts ports() { return {program, prompts, files, pages, clipboard, easel, pictures}; }
};

} // namespace wortlex
