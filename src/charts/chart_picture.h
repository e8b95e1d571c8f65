// A chart as a picture file: how every chart window, and the pages of HTML, write one.
#pragma once

#include "base/ports/file_dialogs.h"
#include "base/ports/prompts.h"
#include "base/ports/surface.h"
#include "settings/system_files.h"

namespace wortlex {

/// A chart of so many pixels.
struct ChartDrawing {
    Extent size;
    std::function<void(Surface&)> draw;
};

/// What makes picture files, and where they go.
struct PictureDesk {
    Easel& easel;
    Pictures& pictures;
    Files& files;
    Prompts& prompts;
    FolderSet& folders;
    int quality = 100; ///< 20 to 100
};

/// Writes the picture, wholly or not at all; what fails is told. Whether the file stands.
bool save_chart(const std::string& path, const ChartDrawing& chart, const PictureDesk& desk);

/// Asks for the file first, starting in the folder for pictures, which follows the user where the settings
/// say so. `name` is UTF-8, without an ending; who leaves the dialog gets nothing.
void choose_and_save_chart(const ChartDrawing& chart, const std::string& name, const PictureDesk& desk);

} // namespace wortlex
