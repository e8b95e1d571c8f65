// The Carbonation Calculator: priming sugar, or the pressure that does without it.
#pragma once

#include "calculators/twin_rows.h"
#include "page/page.h"
#include "records/documents/session_document.h"

namespace wortlex {

struct CarbonationCalculator {
    TwinGallons beer = of_gallons(5);
    TwinDegrees fermentation = of_fahrenheit(68);
    TwinDegrees forced = of_fahrenheit(42);
    float level = 2.5F;                               ///< volumes of CO2
    PrimingMedium medium = PrimingMedium::corn_sugar; ///< or DME
};

struct PrimingAmounts {
    float grams = 0;
    float ounces = 0;
    float pounds = 0;
    float kilograms = 0;
};
/// Of the medium chosen; negative if the beer holds more already.
PrimingAmounts priming_of(const CarbonationCalculator& calculator, const Settings& settings);

struct CarbonationPressure {
    float psi = 0;
    float kilopascals = 0;
};
CarbonationPressure pressure_of(const CarbonationCalculator& calculator);

/// Its level, edited.
void carbonation_level_row(Rows& rows, CarbonationCalculator& calculator);

/// Edits `calculator`, which must outlive the form.
void carbonation_form(Form& form, CarbonationCalculator& calculator, const Settings& settings,
                      ToolActions actions = {});

PrintRequest carbonation_printout(const CarbonationCalculator& calculator, const Settings& settings);

} // namespace wortlex
