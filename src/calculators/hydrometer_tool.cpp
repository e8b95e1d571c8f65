#include "calculators/hydrometer_tool.h"

#include "brewing/hydrometer.h"
#include "calculators/tool_page.h"

#include <utility>

namespace wortlex {
namespace {

std::string degrees_line(const char* label, const TwinDegrees& degrees) {
    return label + formatted(":\t%0.2f F", degrees.fahrenheit) + formatted("\t%0.2f C", degrees.celsius);
}

} // namespace

void open_hydrometer(HydrometerTool& tool, const Settings& settings) {
    tool.calibration = of_fahrenheit(settings.hydrometer_calibration);
    tool.calibration_error = hydrometer_error(settings.hydrometer_calibration);
}

HydrometerTool hydrometer_for(float sg, const Settings& settings) {
    HydrometerTool tool;
    open_hydrometer(tool, settings);
    tool.gravity = of_sg(sg);
    tool.temperature = tool.calibration;
    return tool;
}

TwinGravity corrected_reading(const HydrometerTool& tool) {
    return of_sg(corrected_gravity(tool.gravity.sg, tool.temperature.fahrenheit, tool.calibration_error));
}

void hydrometer_form(Form& form, HydrometerTool& tool, const Settings& settings, ToolActions actions) {
    TwinLines lines(form.group(), "readings", settings);
    lines.shown_degrees("calibration", "Calibration Temperature", [&tool] { return tool.calibration; });
    const auto reading = lines.gravity("current", "Current &SG", tool.gravity);
    reading.sg.range(0.85F, 2.0F);
    reading.plato.range(-46.0F, 100.0F);
    lines.degrees("temperature", "&Temperature", tool.temperature, {32, 212}, {0, 100});
    lines.shown_gravity("corrected", "Corrected SG\n(At Calibration Temperature)",
                        [&tool] { return corrected_reading(tool); });
    tool_buttons(form.group(), std::move(actions));
}

PrintRequest hydrometer_printout(const HydrometerTool& tool, const Settings& settings) {
    const auto sg = sg_pattern(0, settings);
    return tool_page("Wortlex Hydrometer Correction Calculator",
                     {degrees_line("Calibration Temperature", tool.calibration),
                      "Current SG:\t" + formatted(sg, tool.gravity.sg) + "\t" +
                          formatted(plato_pattern(0, settings), tool.gravity.plato) + " Plato",
                      degrees_line("Current Temperature", tool.temperature),
                      "Corrected SG:\t" + formatted(sg, corrected_reading(tool).sg)},
                     {175, 255}, settings);
}

} // namespace wortlex
