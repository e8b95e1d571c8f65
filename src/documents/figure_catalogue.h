// The figures of a document, each once: its key, where it is read, its unit and its decimals. Windows,
// reports, JSON and summary name a figure and give only their own words to it.
#pragma once

#include "documents/document_recalculation.h"
#include "measures/unit_words.h"

#include <string_view>

namespace wortlex {

/// What a figure is stored in, and so what it is shown in.
enum class FigureUnit {
    none,
    gallons,  ///< shown in the unit of volumes
    quarts,   ///< in that of mash water
    pounds,   ///< in that of grain
    ounces,   ///< in that of hops
    fraction, ///< in percent
    minutes,
    points,
    sg, ///< in the decimals of the settings, as the next
    plato,
    bitterness,
    srm ///< in the unit of colours
};

/// All that figures are read from.
struct FigureSource {
    const BrewDocument& document;
    const RecipeFigures& figures;
    const Settings& settings;
};
FigureSource source_of(const OpenDocument& open);

struct Figure {
    std::string_view key;
    double (*value)(const FigureSource& source); ///< as stored
    FigureUnit unit = FigureUnit::none;
    int decimals = 0; ///< at the least, where the settings tell how many
};

/// The value in the unit that the settings ask for.
double shown_value(const Figure& figure, const FigureSource& source);

/// The words of that unit; empty ones where a unit goes without saying.
const UnitWords& unit_words(const Figure& figure, const Settings& settings);

/// As the settings ask for.
int shown_decimals(const Figure& figure, const Settings& settings);

namespace recipe_figure {

extern const Figure batch_size, wort_size, boil_minutes, efficiency;
extern const Figure og_points, sg, plato, tinseth_points;
extern const Figure total_grain, mash_grain, total_extract, sucrose;
extern const Figure total_hops, total_ibu;
extern const Figure mcu, colour;
extern const Figure mash_water, mash_volume; ///< of the schedule in force

} // namespace recipe_figure
} // namespace wortlex
