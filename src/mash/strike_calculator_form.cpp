#include "mash/strike_calculator_form.h"

#include "base/number.h"
#include "measures/unit_words.h"
#include "measures/units.h"

#include <algorithm>
#include <utility>

namespace wortlex {
namespace {

constexpr double quarts_per_gallon = 4.0;

// A field for one unit of a pair: `read` tells it, and `pair_of` makes both units of what was typed.
template <class Pair>
NumberRow& twin_row(Rows& rows, const char* key, const char* unit, StrikeCalculator& calculator,
                    Pair StrikeCalculator::*pair, float Pair::*part, Pair (*pair_of)(float)) {
    return rows
        .number(key, {[&calculator, pair, part] { return calculator.*pair.*part; },
                      [&calculator, pair, pair_of](float typed) {
                          calculator.*pair = pair_of(typed);
                          work_out_strike(calculator);
                      }})
        .unit(unit);
}

void as_amount(NumberRow& row) {
    row.typed(0.0F, 10000.0F).spun(0.0F, 30000.0F, 0.25F);
}

void amount_rows(Rows& rows, StrikeCalculator& calculator, const Settings& settings) {
    const bool by_gallon = is_pro(settings);
    const double unit = by_gallon ? quarts_per_gallon : 1.0;
    using Calculator = StrikeCalculator;
    as_amount(twin_row(rows, "pounds", words_of(Unit::pounds).capital, calculator, &Calculator::grain,
                       &TwinWeight::pounds, of_pounds)
                  .label("Total &Grain"));
    as_amount(twin_row(rows, "kilograms", words_of(Unit::kilograms).usual, calculator, &Calculator::grain,
                       &TwinWeight::kilograms, of_kilograms));
    as_amount(twin_row(rows, "quarts", words_of(by_gallon ? Unit::gallons : Unit::quarts).usual, calculator,
                       &Calculator::water, &TwinVolume::quarts, of_quarts)
                  .label("Total &Water")
                  .shown_as([unit](float quarts) { return narrow(quarts / unit); },
                            [unit](float shown) { return narrow(shown * unit); }));
    as_amount(twin_row(rows, "litres", words_of(Unit::litres).full, calculator, &Calculator::water,
                       &TwinVolume::litres, of_litres));
}

void ratio_row(Rows& rows, const char* key, const char* unit, StrikeCalculator& calculator,
               float StrikeCalculator::*ratio, void (*set)(StrikeCalculator&, float)) {
    rows.number(key, {[&calculator, ratio] { return calculator.*ratio; },
                      [&calculator, set](float typed) { set(calculator, typed); }})
        .label(key == std::string_view("quarts_per_pound") ? "Water / Grain &Ratio" : "")
        .typed(0.0F, 100.0F) // what is below the least ratio counts as that
        .spun(0.05F, 100.0F, 0.25F)
        .unit(unit);
}

void temperature_rows(Rows& rows, const std::string& key, const char* label, StrikeCalculator& calculator,
                      TwinDegrees StrikeCalculator::*pair) {
    const auto fahrenheit = key + "_fahrenheit", celsius = key + "_celsius";
    twin_row(rows, fahrenheit.c_str(), words_of(Unit::fahrenheit).usual, calculator, pair,
             &TwinDegrees::fahrenheit, of_fahrenheit)
        .label(label)
        .range(1.0F, 221.0F)
        .step(1.0F);
    twin_row(rows, celsius.c_str(), words_of(Unit::celsius).usual, calculator, pair, &TwinDegrees::celsius,
             of_celsius)
        .range(0.0F, 105.0F)
        .step(1.0F);
}

ShownRow& result(Rows& rows, const char* key, const char* unit, std::function<float()> value) {
    return rows.shown_number(key, std::move(value), "%6.2f").unit(unit);
}

void result_rows(Rows& rows, const StrikeCalculator& calculator) {
    const auto& strike = calculator.strike;
    result(rows, "strike_fahrenheit", words_of(Unit::fahrenheit).usual, [&strike] {
        return strike.fahrenheit;
    }).label("Initial Strike Water Temperature Should Be");
    result(rows, "strike_celsius", words_of(Unit::celsius).usual, [&strike] { return strike.celsius; });
    result(rows, "mash_gallons", words_of(Unit::gallons).full, [&calculator] {
        return calculator.mash_gallons;
    }).label("Total Mash Volume");
    result(rows, "mash_litres", words_of(Unit::litres).full,
           [&calculator] { return narrow(calculator.mash_gallons * litres_per_gallon); });
}

} // namespace

void strike_calculator_form(Form& form, StrikeCalculator& calculator, const Settings& settings,
                            StrikeActions actions) {
    auto& rows = form.rows();
    rows.number("thermal_mass", calculator.thermal_mass)
        .label("Mash Tun Thermal &Mass")
        .range(0.0F, 100.0F)
        .step(0.025F)
        .format("%5.3f")
        .changed([&calculator] {
            calculator.thermal_mass = std::max(calculator.thermal_mass, 0.0F); // after a step below
            work_out_strike(calculator);
        });
    amount_rows(rows, calculator, settings);
    ratio_row(rows, "quarts_per_pound", "Qts/Lbs", calculator, &StrikeCalculator::quarts_per_pound,
              set_quarts_per_pound);
    ratio_row(rows, "litres_per_kilogram", "L/kg", calculator, &StrikeCalculator::litres_per_kilogram,
              set_litres_per_kilogram);
    temperature_rows(rows, "wanted", "Desired &Strike Temp", calculator, &StrikeCalculator::wanted);
    temperature_rows(rows, "grain", "Grain &Temp", calculator, &StrikeCalculator::grain_at);
    result_rows(rows, calculator);
    rows.button("print", "&Print", std::move(actions.print));
    rows.button("help", "&Help", std::move(actions.help));
}

} // namespace wortlex
