#include "calculators/carbonation_calculator.h"

#include "brewing/carbonation.h"
#include "calculators/tool_page.h"
#include "measures/units.h"

#include <utility>

namespace wortlex {
namespace {

constexpr double grams_per_priming_ounce = 28.3495, ounces_per_priming_pound = 16;
constexpr Range fahrenheit_range = {0, 212}, celsius_range = {-17.77F, 100};

bool is_dme(const CarbonationCalculator& calculator) {
    return calculator.medium == PrimingMedium::dme;
}

void priming_rows(Form& form, CarbonationCalculator& calculator, const Settings& settings) {
    const auto figure = [&](const char* key, float PrimingAmounts::*part) -> TwinLines::Figure {
        return {key, [&calculator, &settings, part] { return priming_of(calculator, settings).*part; }};
    };
    auto& rows = form.group("Natural Carbonation");
    rows.choice("medium", calculator.medium, {"Corn &Sugar", "D&ME"}).label("Carbonation Medium");
    rows.note("priming_note", "Amount of Priming Needed for Desired Carbonation Level");
    TwinLines lines(rows, "priming", settings);
    lines.shown("Oz", figure("ounces", &PrimingAmounts::ounces), "Grams",
                figure("grams", &PrimingAmounts::grams));
    lines.shown("Lbs", figure("pounds", &PrimingAmounts::pounds), "Kilograms",
                figure("kilograms", &PrimingAmounts::kilograms));
}

void pressure_rows(Form& form, CarbonationCalculator& calculator, const Settings& settings) {
    auto& rows = form.group("Forced Carbonation");
    rows.note("forced_note", "Temperature Of Beer (when force carbonating)");
    TwinLines lines(rows, "forced", settings);
    lines.degrees("forced", "Temperat&ure", calculator.forced, fahrenheit_range, celsius_range);
    rows.note("pressure_note", "Pressure Needed for Desired Carbonation Level");
    TwinLines(rows, "pressure", settings)
        .shown("Psi", {"psi", [&calculator] { return pressure_of(calculator).psi; }}, "kPa",
               {"kpa", [&calculator] { return pressure_of(calculator).kilopascals; }});
}

std::string amount_line(const CarbonationCalculator& calculator, const Settings& settings) {
    const auto priming = priming_of(calculator, settings);
    const std::string medium = is_dme(calculator) ? "DME" : "Corn Sugar";
    return "Amount of " + medium + formatted(" Needed For Natural Carbonation:\t%0.2f Oz", priming.ounces) +
           formatted("\t%0.2f Grams", priming.grams);
}

std::string temperature_line(const char* label, const TwinDegrees& degrees) {
    return label + formatted(":\t%0.2f F", degrees.fahrenheit) + formatted("\t%0.2f C", degrees.celsius);
}

std::string beer_line(const CarbonationCalculator& calculator, const Settings& settings) {
    const auto words = volume_words(settings);
    return formatted("Amount of Beer:\t%0.2f ", calculator.beer.gallons / words.gallons) +
           (is_pro(settings) ? "Barrels" : "Gallons") +
           formatted("\t%0.2f ", calculator.beer.litres / words.litres) + std::string(words.metric);
}

} // namespace

// The scalar is the display's: what is worked out is corn sugar.
PrimingAmounts priming_of(const CarbonationCalculator& calculator, const Settings& settings) {
    const float grams =
        priming_grams(calculator.beer.gallons, calculator.fermentation.fahrenheit, calculator.level);
    const float ounces = narrow(grams / grams_per_priming_ounce);
    const double scalar = is_dme(calculator) ? settings.dme_scalar : 1.0;
    return {.grams = narrow(grams * scalar),
            .ounces = narrow(ounces * scalar),
            .pounds = narrow(narrow(ounces / ounces_per_priming_pound) * scalar),
            .kilograms = narrow(narrow(grams / 1000.0) * scalar)};
}

CarbonationPressure pressure_of(const CarbonationCalculator& calculator) {
    const float psi = carbonation_pressure(calculator.forced.fahrenheit, calculator.level);
    return {psi, narrow(psi * kilopascals_per_psi)};
}

void carbonation_level_row(Rows& rows, CarbonationCalculator& calculator) {
    rows.number("level", calculator.level)
        .label("&Desired Carbonation Level")
        .unit("Volumes CO2")
        .range(0.0F, 10.0F)
        .step(0.1F)
        .outside(Outside::clamp);
}

void carbonation_form(Form& form, CarbonationCalculator& calculator, const Settings& settings,
                      ToolActions actions) {
    auto& all = form.group("Global Carbonation Parameters");
    all.note("beer_note", "Amount Of Beer");
    TwinLines(all, "beer", settings)
        .named_volume("beer", is_pro(settings) ? "&Barrels" : "&Gallons", calculator.beer);
    all.note("fermentation_note", "Temperature Of Beer (during fermentation)");
    TwinLines(all, "fermentation", settings)
        .degrees("fermentation", "Temper&ature", calculator.fermentation, fahrenheit_range, celsius_range);
    carbonation_level_row(all, calculator);
    priming_rows(form, calculator, settings);
    pressure_rows(form, calculator, settings);
    tool_buttons(form.group(), std::move(actions));
}

PrintRequest carbonation_printout(const CarbonationCalculator& calculator, const Settings& settings) {
    const auto pressure = pressure_of(calculator);
    PageLines lines = {formatted("Desired Carbonation Level:\t%0.2f CO2 Volumes", calculator.level),
                       beer_line(calculator, settings),
                       temperature_line("Temp During Fermentation", calculator.fermentation),
                       temperature_line("Temp During Force Carbonation", calculator.forced)};
    if (is_dme(calculator)) lines.push_back(formatted("DME Scalar:\t%0.2f", settings.dme_scalar));
    lines.push_back(formatted("Pressure Needed For Forced Carbonation:\t%0.2f Psi", pressure.psi) +
                    formatted("\t%0.2f kPa", pressure.kilopascals));
    lines.push_back(amount_line(calculator, settings));
    return tool_page("Wortlex Carbonation Calculator", std::move(lines), {320, 420}, settings);
}

} // namespace wortlex
