#include "calculators/refractometer_tool.h"
#include "calculators/tool_page.h"

namespace wortlex {
namespace {

constexpr std::array uses = {"Raw Wort Gravity",
                             "Runnings Stopped At SG",
                             "Recorded Efficiency OG",
                             "Recorded Original Gravity",
                             "Gravity During Fermentation",
                             "Recorded Finishing Gravity",
                             "% Alcohol, OG and Residual Extract"};

void add_reading(PageLines& lines, const RefractometerReading& raw, const RefractometerReading& net) {
    const auto line = [&](const char* pattern, const std::string& scale, float value, float net_value) {
        lines.push_back(formatted(pattern, value) + "\t" + scale + "\t" + formatted(pattern, net_value) +
                        "\t" + scale);
    };
    lines.insert(lines.end(), {"Refractometer", "Reading\t\tNet Units"});
    line("%0.2f", "Brix", raw.brix, net.brix);
    line("%0.2f", "Zeiss", raw.zeiss, net.zeiss);
    line("%0.5f", "RI", raw.ri, net.ri);
}

void add_gravity(PageLines& lines, const char* heading, const TwinGravity& gravity) {
    lines.insert(
        lines.end(),
        {"", heading, formatted("%0.5f\tSG", gravity.sg) + formatted("\t%0.3f\tPlato", gravity.plato)});
}

void add_alcohol(PageLines& lines, const RefractometerTool& tool, const RefractometerResults& results) {
    add_gravity(lines, "Current Hydrometer Reading", tool.gravity);
    lines.insert(lines.end(), {"", "Calculated Percent Alcohol",
                               formatted("%0.2f\tWeight", results.alcohol.by_weight) +
                                   formatted("\t%0.2f\tVolume", results.alcohol.by_volume)});
    add_gravity(lines, "Calculated Original Gravity", results.original);
    add_gravity(lines, "Calculated Residual Extract", results.residual);
}

void add_results(PageLines& lines, const RefractometerTool& tool, const RefractometerResults& results) {
    if (tool.kind == RefractometerKind::alcohol) return add_alcohol(lines, tool, results);
    if (tool.kind == RefractometerKind::raw_wort)
        return add_gravity(lines, "Calculated Raw Wort Specific Gravity", results.gravity);
    add_gravity(lines, "Original Raw Wort Gravity", tool.gravity);
    add_gravity(lines, "Calculated Specific Gravity", results.gravity);
}

void add_calibration(PageLines& lines, RefractometerKind kind, const Settings& settings) {
    lines.insert(lines.end(), {"", "Raw and Raw To Net conversions are accurate for",
                               "refractometers with the following water calibration values:",
                               formatted("%0.2f\tBrix", settings.water_brix),
                               formatted("%0.2f\tZeiss", settings.water_zeiss),
                               formatted("%0.5f\tRI", settings.water_ri)});
    if (kind == RefractometerKind::raw_wort)
        lines.insert(lines.end(),
                     {"", "Brix Correction Factor", formatted("%0.3f\t", settings.brix_correction)});
}

} // namespace

PrintRequest refractometer_printout(const RefractometerTool& tool, RefractometerUse use,
                                    const std::optional<PrintedSession>& session, const Settings& settings) {
    PageLines lines;
    if (session) lines = {"From A Wortlex Brewing Session:", session->name, session->date, ""};
    add_reading(lines, tool.reading, net_reading(tool.reading, settings));
    add_results(lines, tool, results_of(tool, settings));
    add_calibration(lines, tool.kind, settings);
    return tool_page(std::string("Wortlex Refractometer Tools - ") + uses.at(static_cast<std::size_t>(use)),
                     std::move(lines), {70, 150, 220}, settings);
}

} // namespace wortlex
