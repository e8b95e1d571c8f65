#include "measures/unit_words.h"

#include <array>

namespace wortlex {
namespace {

constexpr std::array spellings = {&UnitWords::full,   &UnitWords::small, &UnitWords::capital,
                                  &UnitWords::dotted, &UnitWords::head,  &UnitWords::column,
                                  &UnitWords::amount, &UnitWords::row,   &UnitWords::entry,
                                  &UnitWords::stock,  &UnitWords::rate};

constexpr UnitWords unit(UnitWords words) {
    for (const auto spelling : spellings)
        if (words.*spelling == nullptr) words.*spelling = words.usual;
    return words;
}

// In the order of the units.
constexpr std::array table = {
    unit({}),
    unit({.usual = "Gal", .full = "Gallons", .small = "gal", .capital = "GAL"}),
    unit({.usual = "bbl", .full = "Barrels", .capital = "BBL"}),
    unit({.usual = "Qts", .full = "Quarts", .capital = "QTS"}),
    unit({.usual = "L", .full = "Liters"}),
    unit({.usual = "hL", .full = "Hectoliters", .rate = "hl"}),
    unit({.usual = "Oz",
          .full = "Ounces",
          .small = "oz",
          .dotted = "Oz.",
          .column = "oz. ",
          .entry = "Ounces"}),
    unit({.usual = "Lbs",
          .full = "Pounds",
          .small = "lb",
          .capital = "LBS",
          .dotted = "Lbs.",
          .column = "lbs."}),
    unit({.usual = "g",
          .full = "Grams",
          .column = "g.  ",
          .amount = "gm",
          .row = "Gr",
          .entry = "Grams",
          .stock = "Grams"}),
    unit({.usual = "kg", .full = "Kilograms", .head = "Kg", .column = "kg. "}),
    unit({.usual = "Tsp", .full = "Teaspoon", .small = "tsp", .stock = "Tsp(s)"}),
    unit({.usual = "Tbsp", .full = "Tablespoon", .small = "tbsp", .stock = "Tbsp(s)"}),
    unit({.usual = "Cups", .full = "Cup", .small = "cups", .amount = "Cup(s)", .stock = "Cup(s)"}),
    unit({.usual = "Units", .small = "units", .amount = "Unit(s)"}),
    unit({.usual = "SRM"}),
    unit({.usual = "EBC"}),
    unit({.usual = "HBU"}),
    unit({.usual = "MBU"}),
    unit({.usual = "F", .full = "Fahrenheit"}),
    unit({.usual = "C", .full = "Celsius"}),
};
static_assert(table.size() == static_cast<std::size_t>(Unit::celsius) + 1);

Unit by_mode(const SystemSettings& settings, Unit home, Unit pro) {
    return is_pro(settings) ? pro : home;
}

// Of what is stored in ounces.
const UnitWords& by_ounces(const SystemSettings& settings, Units units) {
    return words_of(is_american(units) ? by_mode(settings, Unit::ounces, Unit::pounds)
                                       : by_mode(settings, Unit::grams, Unit::kilograms));
}

} // namespace

const UnitWords& words_of(Unit unit) {
    return table.at(static_cast<std::size_t>(unit));
}

const UnitWords& volume_unit(const SystemSettings& settings) {
    return words_of(is_american(settings.volume_units) ? by_mode(settings, Unit::gallons, Unit::barrels)
                                                       : by_mode(settings, Unit::litres, Unit::hectolitres));
}

const UnitWords& mash_water_unit(const SystemSettings& settings) {
    return words_of(is_american(settings.volume_units) ? by_mode(settings, Unit::quarts, Unit::gallons)
                                                       : Unit::litres);
}

const UnitWords& grain_unit(const SystemSettings& settings) {
    return words_of(is_american(settings.weight_units) ? Unit::pounds : Unit::kilograms);
}

const UnitWords& hop_unit(const SystemSettings& settings) {
    return by_ounces(settings, settings.hop_weight_units);
}

const UnitWords& small_unit(const SystemSettings& settings) {
    return by_ounces(settings, settings.volume_units);
}

const UnitWords& colour_unit(const SystemSettings& settings) {
    return words_of(settings.color_units == ColorUnits::srm ? Unit::srm : Unit::ebc);
}

const UnitWords& bittering_unit(const SystemSettings& settings) {
    return words_of(settings.bittering_unit == BitteringUnit::hbu ? Unit::hbu : Unit::mbu);
}

const UnitWords& temperature_unit(const SystemSettings& settings) {
    return words_of(settings.temperature_units == TemperatureUnits::fahrenheit ? Unit::fahrenheit
                                                                               : Unit::celsius);
}

const char* extract_weight_word(const SystemSettings& settings) {
    const auto& words = grain_unit(settings);
    return is_american(settings.weight_units) ? words.full : words.usual;
}

const char* hop_list_word(const SystemSettings& settings) {
    const auto& words = hop_unit(settings);
    return is_pro(settings) ? words.usual : words.dotted;
}

} // namespace wortlex
