#include "brewing/unit_families.h"

#include "base/number.h"
#include "measures/gravity.h"
#include "measures/units.h"

#include <array>

namespace wortlex {
namespace {

constexpr double grams_per_kilogram = 1000, grains_per_ounce = 437.5;
constexpr double imperial_millilitres_per_ounce = 28.41, imperial_ounces_per_litre = 35.196;

double same(double x) {
    return x;
}

// Each is a value of its own, and stored as one.
double us_gallons(double ounces) {
    return narrow(ounces / 128);
}

double us_litres(double ounces) {
    return narrow(us_gallons(ounces) * litres_per_gallon);
}

double imperial_gallons(double ounces) {
    return narrow(ounces / 160);
}

double imperial_litres(double ounces) {
    return narrow(imperial_gallons(ounces) * 4.546);
}

double grams(double ounces) {
    return narrow(ounces * grams_per_ounce);
}

double celsius(double fahrenheit) {
    return celsius_from_fahrenheit(narrow(fahrenheit));
}

double fahrenheit(double celsius) {
    return celsius * 1.8 + 32;
}

// clang-format off
constexpr std::array us_fluid = {
    FamilyUnit{"Ounces", same, same},
    FamilyUnit{"Cups", [](double o) { return o / 8; }, [](double x) { return x * 8; }},
    FamilyUnit{"Pints", [](double o) { return o / 16; }, [](double x) { return x * 16; }},
    FamilyUnit{"Quarts", [](double o) { return o / 32; }, [](double x) { return x * 32; }},
    FamilyUnit{"Gallons", us_gallons, [](double x) { return x * 128; }},
    FamilyUnit{"Barrels", [](double o) { return us_gallons(o) / gallons_per_barrel; },
         [](double x) { return x * gallons_per_barrel * 128; }},
    FamilyUnit{"Milliliter", [](double o) { return us_litres(o) * 1000; },
         [](double x) { return x / 1000 * fluid_ounces_per_litre; }},
    FamilyUnit{"Liter", us_litres, [](double x) { return x * fluid_ounces_per_litre; }},
    FamilyUnit{"Hectoliter", [](double o) { return us_litres(o) / 100; }, [](double x) { return x * 26.418 * 128; }}};

constexpr std::array imperial_fluid = {
    FamilyUnit{"Ounces", same, same},
    FamilyUnit{"Pint", [](double o) { return o / 20; }, [](double x) { return x * 20; }},
    FamilyUnit{"Gallon", imperial_gallons, [](double x) { return x * 160; }},
    FamilyUnit{"US Ounces", [](double o) { return o * 0.96; }, [](double x) { return x / 0.96; }},
    FamilyUnit{"US Gallons", [](double o) { return imperial_gallons(o) * 1.201; },
         [](double x) { return x / 1.201 * 160; }},
    FamilyUnit{"Barrels", [](double o) { return imperial_gallons(o) / 36; }, [](double x) { return x * 36 * 160; }},
    FamilyUnit{"Milliliter", [](double o) { return imperial_litres(o) * 1000; },
         [](double x) { return x / imperial_millilitres_per_ounce; }},
    FamilyUnit{"Liter", imperial_litres, [](double x) { return x / imperial_millilitres_per_ounce * 1000; }},
    FamilyUnit{"Hectoliter", [](double o) { return imperial_litres(o) / 100; },
         [](double x) { return x * 100 * imperial_ounces_per_litre; }}};

constexpr std::array weight = {
    FamilyUnit{"Ounces", same, same},
    FamilyUnit{"Pounds", [](double o) { return o / 16; }, [](double x) { return x * 16; }},
    FamilyUnit{"Kilogram", [](double o) { return grams(o) / grams_per_kilogram; },
         [](double x) { return x * grams_per_kilogram / grams_per_ounce; }},
    FamilyUnit{"Grams", grams, [](double x) { return x / grams_per_ounce; }},
    FamilyUnit{"Grains", [](double o) { return o * grains_per_ounce; }, [](double x) { return x / grains_per_ounce; }}};

constexpr std::array temperature = {
    FamilyUnit{"Fahrenheit", same, same},
    FamilyUnit{"Celsius", celsius, fahrenheit},
    FamilyUnit{"Kelvin", [](double f) { return celsius(f) + 273.15; }, [](double x) { return fahrenheit(x - 273.15); }},
    FamilyUnit{"Reaumur", [](double f) { return (f - 32) * 4 / 9; }, [](double x) { return x * 9 / 4 + 32; }},
    FamilyUnit{"Rankine", [](double f) { return f + 459.67; }, [](double x) { return x - 459.67; }}};

constexpr std::array gravity = {
    FamilyUnit{"SG", same, same},
    FamilyUnit{"Plato", [](double sg) { return double{sg_to_plato(narrow(sg))}; },
         [](double plato) { return double{plato_to_sg(narrow(plato))}; }}};

constexpr std::array pressure = {
    FamilyUnit{"PSI", same, same},
    FamilyUnit{"kPa", [](double psi) { return psi * kilopascals_per_psi; },
         [](double kilopascals) { return kilopascals / kilopascals_per_psi; }}};
// clang-format on

} // namespace

UnitFamily us_fluid_units() {
    return us_fluid;
}

UnitFamily imperial_fluid_units() {
    return imperial_fluid;
}

UnitFamily weight_units() {
    return weight;
}

UnitFamily temperature_units() {
    return temperature;
}

UnitFamily gravity_units() {
    return gravity;
}

UnitFamily pressure_units() {
    return pressure;
}

void follow_unit(UnitFamily family, std::span<float> values, std::size_t given) {
    const double base = narrow(family[given].to_base(values[given]));
    for (std::size_t i = 0; i < family.size(); ++i)
        if (i != given) values[i] = narrow(family[i].of_base(base));
}

} // namespace wortlex
