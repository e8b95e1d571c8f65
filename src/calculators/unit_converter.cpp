#include "calculators/unit_converter.h"

#include "calculators/tool_page.h"
#include "measures/rounding.h"

#include <utility>

namespace wortlex {
namespace {

constexpr Range any_amount = {0, 100000}, any_pressure = {0, 20000};
constexpr std::array<Range, 5> degree_ranges = {
    {{-100, 500}, {-73, 500}, {-25000, 25000}, {-25000, 25000}, {-25000, 25000}}};

// Of one unit: its field of the family, bound so that the others follow.
template <std::size_t N>
Binding<float> followed(UnitFamily family, std::array<float, N>& values, std::size_t unit) {
    return {[&values, unit] { return values.at(unit); },
            [family, &values, unit](float typed) {
                values.at(unit) = typed;
                follow_unit(family, values, unit);
            }};
}

std::string key_of(const std::string& prefix, std::string_view name) {
    std::string key = prefix;
    for (const char c : name) key += c == ' ' ? '_' : static_cast<char>(c | 0x20);
    return key;
}

// The letters of the window's mnemonics, by key; there are more fields than letters.
constexpr std::array mnemonics = {std::pair{"us_ounces", 'O'},
                                  std::pair{"us_cups", 'C'},
                                  std::pair{"us_pints", 'i'},
                                  std::pair{"us_quarts", 'Q'},
                                  std::pair{"us_gallons", 'G'},
                                  std::pair{"us_barrels", 'B'},
                                  std::pair{"us_milliliter", 'M'},
                                  std::pair{"us_liter", 'L'},
                                  std::pair{"us_hectoliter", 'H'},
                                  std::pair{"imperial_ounces", 'n'},
                                  std::pair{"imperial_us_ounces", 'U'},
                                  std::pair{"weight_ounces", 'e'},
                                  std::pair{"weight_pounds", 'd'},
                                  std::pair{"weight_kilogram", 'K'},
                                  std::pair{"fahrenheit", 'F'},
                                  std::pair{"kpa", 'a'},
                                  std::pair{"sg", 'S'},
                                  std::pair{"plato", 't'}};

std::string labelled(const std::string& key, std::string_view name) {
    std::string label(name);
    for (const auto& [field, letter] : mnemonics)
        if (key == field) label.insert(label.find(letter), 1, '&');
    return label;
}

NumberRow& as_cut(NumberRow& row, const Range& range) {
    return row.range(range.low, range.high)
        .step(1.0F)
        .format("%4.2f")
        .width(9)
        .shown_as(two_decimals, [](float shown) { return shown; });
}

template <std::size_t N>
void unit_amount_rows(Rows& rows, const std::string& prefix, UnitFamily family,
                      std::array<float, N>& values) {
    for (std::size_t i = 0; i < N; ++i) {
        const auto key = key_of(prefix, family[i].name);
        as_cut(rows.number(key, followed(family, values, i)), any_amount)
            .label(labelled(key, family[i].name));
    }
}

void unit_temperature_rows(Rows& rows, std::array<float, 5>& values) {
    const auto family = temperature_units();
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto key = key_of("", family[i].name);
        as_cut(rows.signed_number(key, followed(family, values, i)), degree_ranges.at(i))
            .label(labelled(key, family[i].name));
    }
}

void unit_gravity_rows(Rows& rows, UnitConverter& converter, const Settings& settings) {
    rows.sg("sg", followed(gravity_units(), converter.gravity, 0), settings)
        .label(labelled("sg", "SG"))
        .range(1.0F, 2.0F)
        .step(0.001F);
    rows.plato("plato", followed(gravity_units(), converter.gravity, 1), settings)
        .label(labelled("plato", "Plato"))
        .range(0.0F, 100.0F)
        .step(0.1F);
}

void unit_pressure_rows(Rows& rows, std::array<float, 2>& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto name = pressure_units()[i].name;
        const auto key = key_of("", name);
        rows.number(key, followed(pressure_units(), values, i))
            .label(labelled(key, name))
            .range(any_pressure.low, any_pressure.high)
            .step(1.0F);
    }
}

// Some units are called otherwise on the page.
std::string page_name(std::string_view name) {
    if (name == "Quarts") return "Quart";
    return std::string(name == "Celsius" ? "Celcius" : name);
}

std::string figure(UnitFamily family, std::span<const float> values, std::size_t unit) {
    return page_name(family[unit].name) + formatted("\t%0.2f", two_decimals(values[unit]));
}

// The three tables beside each other; the last is the shortest.
void add_amounts(PageLines& lines, const UnitConverter& converter) {
    for (std::size_t i = 0; i < converter.us_fluid.size(); ++i) {
        lines.push_back(figure(us_fluid_units(), converter.us_fluid, i) + "\t" +
                        figure(imperial_fluid_units(), converter.imperial_fluid, i));
        if (i < converter.weight.size()) lines.back() += "\t" + figure(weight_units(), converter.weight, i);
    }
}

void add_degrees(PageLines& lines, const UnitConverter& converter) {
    lines.insert(lines.end(), {"", "Temperature"});
    for (std::size_t i = 0; i < converter.temperature.size(); ++i)
        lines.push_back(figure(temperature_units(), converter.temperature, i));
}

} // namespace

void UnitConverter::reset() {
    us_fluid = imperial_fluid = {};
    weight = {};
    temperature[0] = 60;
    follow_unit(temperature_units(), temperature, 0);
    gravity[0] = 1;
    follow_unit(gravity_units(), gravity, 0);
    pressure[0] = 1;
    follow_unit(pressure_units(), pressure, 0);
}

void unit_converter_form(Form& form, UnitConverter& converter, const Settings& settings,
                         ToolActions actions) {
    unit_amount_rows(form.group("US Fluid"), "us_", us_fluid_units(), converter.us_fluid);
    form.next_column();
    unit_amount_rows(form.group("Imperial Fluid"), "imperial_", imperial_fluid_units(),
                     converter.imperial_fluid);
    form.next_column();
    unit_amount_rows(form.group("Weight"), "weight_", weight_units(), converter.weight);
    unit_pressure_rows(form.group("Pressure"), converter.pressure);
    form.next_column();
    unit_temperature_rows(form.group("Temperature"), converter.temperature);
    unit_gravity_rows(form.group("Gravity"), converter, settings);
    auto& buttons = form.group();
    buttons.button("reset", "&Reset", [&converter] { converter.reset(); });
    tool_buttons(buttons, std::move(actions));
}

PrintRequest unit_converter_printout(const UnitConverter& converter, const Settings& settings) {
    PageLines lines = {"US\t\tImperial\t", "Fluid Measurements\tFluid Measurements\tWeight Measurements"};
    add_amounts(lines, converter);
    add_degrees(lines, converter);
    lines.insert(
        lines.end(),
        {"", "Gravity",
         "SG" + formatted("\t" + sg_pattern(0, settings), converter.gravity[0]) + "\tPlato" +
             formatted("\t" + plato_pattern(0, settings), converter.gravity[1]),
         "", "Pressure",
         formatted("PSI\t%0.3f", converter.pressure[0]) + formatted("\tkPa\t%0.2f", converter.pressure[1])});
    return tool_page("Wortlex Measurements And Conversions", std::move(lines), {105, 220, 325, 420, 515},
                     settings);
}

} // namespace wortlex
