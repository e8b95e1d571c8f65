#include "documents/figure_catalogue.h"

#include "measures/gravity.h"
#include "measures/precision.h"
#include "measures/units.h"

namespace wortlex {

FigureSource source_of(const OpenDocument& open) {
    return {open.document, open.figures, open.settings};
}

double shown_value(const Figure& figure, const FigureSource& source) {
    const double value = figure.value(source);
    switch (figure.unit) {
    case FigureUnit::gallons:
        return to_shown_volume(narrow(value), source.settings);
    case FigureUnit::quarts:
        return quarts_to_shown(narrow(value), source.settings);
    case FigureUnit::pounds:
        return grain_to_shown(narrow(value), source.settings);
    case FigureUnit::ounces:
        return hop_to_shown(narrow(value), source.settings);
    case FigureUnit::fraction:
        return value * 100.0;
    case FigureUnit::srm:
        return to_shown_colour(narrow(value), source.settings);
    default:
        return value;
    }
}

const UnitWords& unit_words(const Figure& figure, const Settings& settings) {
    switch (figure.unit) {
    case FigureUnit::gallons:
        return volume_unit(settings);
    case FigureUnit::quarts:
        return mash_water_unit(settings);
    case FigureUnit::pounds:
        return grain_unit(settings);
    case FigureUnit::ounces:
        return hop_unit(settings);
    case FigureUnit::srm:
        return colour_unit(settings);
    default:
        return words_of(Unit::none);
    }
}

int shown_decimals(const Figure& figure, const Settings& settings) {
    if (figure.unit == FigureUnit::sg) return sg_decimals(settings);
    return figure.unit == FigureUnit::plato ? plato_decimals(settings) : figure.decimals;
}

namespace recipe_figure {
namespace {

using From = const FigureSource&;

double gravity(From from) {
    return hop_gravity(from.document);
}

double degrees_plato(From from) {
    return sg_to_plato(hop_gravity(from.document));
}

} // namespace

using Is = FigureUnit;

constinit const Figure
    batch_size = {"batch_size", [](From from) -> double { return from.document.batch_size; }, Is::gallons, 2},
    wort_size = {"wort_size", [](From from) -> double { return from.document.wort_size; }, Is::gallons, 2},
    boil_minutes = {"boil_minutes", [](From from) -> double { return from.document.boil_minutes; },
                    Is::minutes},
    efficiency = {"efficiency", [](From from) -> double { return from.document.efficiency; }, Is::fraction};

constinit const Figure og_points = {"og_points", [](From from) -> double { return from.document.og_points; },
                                    Is::points, 1},
                       sg = {"sg", gravity, Is::sg, 3}, plato = {"plato", degrees_plato, Is::plato, 1},
                       tinseth_points = {"tinseth_points",
                                         [](From from) -> double { return from.figures.tinseth_points; },
                                         Is::points, 1};

constinit const Figure total_grain = {"total_grain",
                                      [](From from) -> double { return from.figures.total_grain; },
                                      Is::pounds, 2},
                       mash_grain = {"mash_grain",
                                     [](From from) -> double { return from.figures.mash_grain; }, Is::pounds,
                                     2},
                       total_extract = {"total_extract",
                                        [](From from) { return from.figures.total_extract_pounds; },
                                        Is::pounds, 2},
                       sucrose = {"sucrose", [](From from) { return from.figures.recipe_sucrose; }, Is::none,
                                  4};

constinit const Figure total_hops = {"total_hop_ounces",
                                     [](From from) -> double { return from.figures.total_hop_ounces; },
                                     Is::ounces, 3},
                       total_ibu = {"total_ibu", [](From from) -> double { return from.document.total_ibu; },
                                    Is::bitterness, 1};

constinit const Figure mcu = {"mcu", [](From from) -> double { return from.figures.colour.mcu; }, Is::none,
                              2},
                       colour = {"srm", [](From from) -> double { return from.figures.colour.srm; }, Is::srm,
                                 1};

constinit const Figure mash_water = {"mash_water",
                                     [](From from) -> double { return from.figures.mash.quarts; }, Is::quarts,
                                     2},
                       mash_volume = {"mash_volume",
                                      [](From from) -> double { return from.figures.mash.gallons; },
                                      Is::gallons, 2};

} // namespace recipe_figure
} // namespace wortlex
