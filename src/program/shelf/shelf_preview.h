// What the shelf shows of the recipe that is selected on it.
#pragma once

#include "brewing/beer_colour.h"
#include "program/shelf/shelf_entry.h"
#include "settings/system_files.h"

namespace wortlex {

/// What reports of recipes rest on beside the recipe.
struct ShelfPreviewing {
    const Settings& settings;
    const ColorTable& color_table;
    float evaporation_rate = 0; ///< percent or gallons per hour, by the settings
    PrintSelection sections;    ///< of the usual report
};

/// Its report as text, UTF-8, without its head, below what is wrong with its file; of a file that cannot be
/// opened that alone.
std::string shelf_preview(const ShelfEntry& entry, const ShelfPreviewing& with);

} // namespace wortlex
