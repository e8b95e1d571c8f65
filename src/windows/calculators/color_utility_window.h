// The Color Spectrum Utility on the screen.
#pragma once

#include "calculators/color_utility.h"
#include "program/program.h"

#include <QWidget>

namespace wortlex {

/// What the utility asks of the rest of the program.
struct ColorUtilityPorts {
    Files& files;
    Prompts& prompts;
    Pictures& pictures;
    const Clock& clock;
};

/// Edits the live colour table, and the calibration and global adjust of `image`, until it is closed. OK and
/// Cancel decide on the table alone; who opens it restores the image.
void run_color_utility(Program& program, SystemSettings& image, const ColorUtilityPorts& ports,
                       QWidget* owner);

} // namespace wortlex
