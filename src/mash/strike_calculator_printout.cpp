#include "mash/strike_calculator_printout.h"

#include "base/number.h"
#include "measures/units.h"

namespace wortlex {
namespace {

void print_line(PageContext& page, const std::string& line) {
    page.TabbedLine({175, 255, 330, 415}, line);
}

void print_result(PageContext& page, const std::string& line) {
    page.TabbedLine({365, 425}, line);
}

// The metric amounts follow from the American ones, whichever was typed.
void print_amounts(PageContext& page, const StrikeCalculator& calculator, bool by_gallon) {
    const auto grain = of_pounds(calculator.grain.pounds);
    const auto water = of_quarts(calculator.water.quarts);
    print_line(page, formatted("Total Grain:\t%0.2f\tLBS", grain.pounds) +
                         formatted("\t%0.2f\tkg", grain.kilograms));
    print_line(page, (by_gallon ? formatted("Total Water:\t%0.2f\tGAL", water.quarts / 4.0)
                                : formatted("Total Water:\t%0.2f\tQTS", water.quarts)) +
                         formatted("\t%0.2f\tLiters", water.litres));
    print_line(page, formatted("Water/Grain Ratio:\t%0.2f\t", calculator.quarts_per_pound) +
                         formatted("\t%0.2f\t", calculator.litres_per_kilogram));
}

void print_degrees(PageContext& page, const std::string& label, const TwinDegrees& degrees) {
    print_line(page, label + formatted(":\t%0.2f\tF", degrees.fahrenheit) +
                         formatted("\t%0.2f\tC", degrees.celsius));
}

void print_strike(PageContext& page, const StrikeCalculator& calculator, std::string_view title,
                  bool by_gallon) {
    page.SetHeader(0, std::string(title));
    page.NewLines(1);
    print_line(page, formatted("Tun Thermal Mass:\t%0.3f", calculator.thermal_mass));
    page.NewLines(1);
    print_amounts(page, calculator, by_gallon);
    print_degrees(page, "Desired Mash Temp", calculator.wanted);
    print_degrees(page, "Grain Temp", calculator.grain_at);
    page.NewLines(1);
    print_result(page, formatted("Initial Dough In Strike Water Temp Shoud Be\t%0.2f\tDegrees Fahrenheit",
                                 calculator.strike.fahrenheit));
    // The window may still show the wanted temperature there, as it does at its opening.
    print_result(page,
                 formatted("\t%0.2f\tDegrees Celsius", of_fahrenheit(calculator.strike.fahrenheit).celsius));
    page.NewLines(2);
    print_line(page, formatted("Total Mash Volume:\t%0.2f\tGAL", calculator.mash_gallons) +
                         formatted("\t%0.2f\tLiters", calculator.mash_gallons * litres_per_gallon));
}

} // namespace

PrintRequest strike_calculator_printout(const StrikeCalculator& calculator, const Settings& settings,
                                        std::string_view title) {
    const bool by_gallon = is_pro(settings);
    return {std::string(title), settings.printer_scale, [calculator, title, by_gallon](PageContext& page) {
                print_strike(page, calculator, title, by_gallon);
            }};
}

} // namespace wortlex
