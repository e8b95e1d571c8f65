// What the calculators remember while the program runs.
#pragma once

#include "calculators/alcohol_calculator.h"
#include "calculators/boil_off_calculator.h"
#include "calculators/carbonation_calculator.h"
#include "calculators/dilution_calculator.h"
#include "calculators/hydrometer_tool.h"
#include "calculators/refractometer_tool.h"
#include "calculators/unit_converter.h"

namespace wortlex {

struct CalculatorStates {
    HydrometerTool hydrometer;
    std::array<RefractometerTool, 3> refractometers = new_refractometer_tools();
    /// What a notice of the calibration is about.
    CalibrationChange calibration_change = CalibrationChange::factor;
    AlcoholCalculator alcohol;
    DilutionCalculator dilution;
    BoilOffCalculator boil_off;
    CarbonationCalculator carbonation;
    UnitConverter units;
};

} // namespace wortlex
