#include "calculators/carbonation_of_session.h"

namespace wortlex {

CarbonationCalculator carbonation_of(const BottlingLog& log, std::size_t column) {
    return {.beer = of_gallons(log.amount.at(column)),
            .fermentation = of_fahrenheit(static_cast<float>(log.ferment_temperature)),
            .forced = of_fahrenheit(static_cast<float>(log.carbonation_temperature.at(column))),
            .level = log.co2_volumes,
            .medium = log.priming_medium.at(column)};
}

void natural_carbonation_form(Form& form, CarbonationCalculator& calculator, const Settings& settings) {
    auto& rows = form.group();
    const auto figure = [&](const char* key, float PrimingAmounts::*part) -> TwinLines::Figure {
        return {key, [&calculator, &settings, part] { return priming_of(calculator, settings).*part; }};
    };
    const bool is_dme = calculator.medium == PrimingMedium::dme;
    rows.note("priming_note", is_dme ? "You Will Need The Following Amount Of DME:"
                                     : "You Will Need The Following Amount Of Priming Sugar:");
    TwinLines priming(rows, "priming", settings);
    priming.shown("Oz", figure("ounces", &PrimingAmounts::ounces), "Grams",
                  figure("grams", &PrimingAmounts::grams));
    priming.shown("Pounds", figure("pounds", &PrimingAmounts::pounds), "Kilograms",
                  figure("kilograms", &PrimingAmounts::kilograms));
    carbonation_level_row(rows, calculator);
    TwinLines beer(rows, "beer", settings);
    beer.shown_volume("beer", "Amount Of Beer", [&calculator] { return calculator.beer; });
    beer.shown_degrees("fermentation", "Temperature Of Beer (during fermentation)",
                       [&calculator] { return calculator.fermentation; });
}

void forced_carbonation_form(Form& form, const CarbonationCalculator& calculator, const Settings& settings) {
    auto& rows = form.group();
    rows.note("pressure_note", "Pressure Needed for Forced Carbonation");
    TwinLines(rows, "pressure", settings)
        .shown("Psi", {"psi", [&calculator] { return pressure_of(calculator).psi; }}, "kPa",
               {"kpa", [&calculator] { return pressure_of(calculator).kilopascals; }});
    rows.shown_number(
            "level", [&calculator] { return calculator.level; }, "%0.2f")
        .label("Desired Carbonation Level")
        .unit("Volumes CO2");
    TwinLines(rows, "beer", settings)
        .shown_degrees("forced", "Temperature Of Beer (when force carbonating)",
                       [&calculator] { return calculator.forced; });
}

} // namespace wortlex
