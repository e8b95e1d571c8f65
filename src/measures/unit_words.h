// What units are called: one table, a row a unit and a column a spelling. The system has never settled on one
// spelling, and each place keeps that which its users know.
#pragma once

#include "settings/system_settings.h"

namespace wortlex {

enum class Unit : std::uint8_t {
    none,
    gallons,
    barrels,
    quarts,
    litres,
    hectolitres,
    ounces,
    pounds,
    grams,
    kilograms,
    teaspoons,
    tablespoons,
    cups,
    pieces,
    srm,
    ebc,
    hbu,
    mbu,
    fahrenheit,
    celsius
};

/// The spellings of one unit; where one has no form of its own it is `usual`. Those of `Unit::none` are
/// empty.
struct UnitWords {
    const char* usual = "";        ///< "Lbs"
    const char* full = nullptr;    ///< "Pounds"
    const char* small = nullptr;   ///< "lb"
    const char* capital = nullptr; ///< "LBS"
    const char* dotted = nullptr;  ///< "Lbs."
    const char* head = nullptr;    ///< "Lbs", of lists of malts
    const char* column = nullptr;  ///< "lbs.", of lists in reports, as wide as each other
    const char* amount = nullptr;  ///< "gm", of the extras of a recipe
    const char* row = nullptr;     ///< "Gr", of printed lists of extras
    const char* entry = nullptr;   ///< "Grams", of a printed extra
    const char* stock = nullptr;   ///< "Grams", of the inventory of extras
    const char* rate = nullptr;    ///< "hl", an hour
};

const UnitWords& words_of(Unit unit);

/// The units that the settings ask for.
const UnitWords& volume_unit(const SystemSettings& settings);     ///< gallons, barrels, litres, hectolitres
const UnitWords& mash_water_unit(const SystemSettings& settings); ///< quarts, gallons, litres
const UnitWords& grain_unit(const SystemSettings& settings);      ///< pounds, kilograms
const UnitWords& hop_unit(const SystemSettings& settings);        ///< ounces, pounds, grams, kilograms
const UnitWords& small_unit(const SystemSettings& settings); ///< of priming: as hops, by the units of volume
const UnitWords& colour_unit(const SystemSettings& settings);
const UnitWords& bittering_unit(const SystemSettings& settings); ///< what stands in for IBU
const UnitWords& temperature_unit(const SystemSettings& settings);

/// Of extract: "Pounds", "kg".
const char* extract_weight_word(const SystemSettings& settings);

/// Of hops, where only the ounce has its dot: "Oz.", "Lbs", "g", "kg".
const char* hop_list_word(const SystemSettings& settings);

} // namespace wortlex
