// The temperature correction of a hydrometer: its readings, its form, its page.
#pragma once

#include "calculators/twin_rows.h"
#include "page/page.h"

namespace wortlex {

struct HydrometerTool {
    TwinGravity gravity{1.05F, 12.387F};
    TwinDegrees temperature{60, 15};

    TwinDegrees calibration;
    float calibration_error = 0; ///< points
};

/// To be called at each opening: takes the calibration of the settings.
void open_hydrometer(HydrometerTool& tool, const Settings& settings);

/// For the correction of one reading (SG), at first as if it were taken at the calibration temperature.
HydrometerTool hydrometer_for(float sg, const Settings& settings);

TwinGravity corrected_reading(const HydrometerTool& tool);

/// Edits `tool`, which must outlive the form.
void hydrometer_form(Form& form, HydrometerTool& tool, const Settings& settings, ToolActions actions = {});

PrintRequest hydrometer_printout(const HydrometerTool& tool, const Settings& settings);

} // namespace wortlex
