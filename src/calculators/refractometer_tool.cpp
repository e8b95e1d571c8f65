#include "calculators/refractometer_tool.h"

#include "base/number.h"
#include "measures/gravity.h"

#include <cmath>
#include <limits>

namespace wortlex {
namespace {

constexpr float not_known = std::numeric_limits<float>::quiet_NaN();

float net_zeiss(const RefractometerTool& tool, const Settings& settings) {
    return net_reading(tool.reading, settings).zeiss;
}

RefractometerReading reading_of_net_zeiss(float zeiss, const Settings& settings) {
    return reading_of_zeiss(narrow(double{zeiss} + settings.water_zeiss), settings);
}

// The attenuations go by the gravity that the original extract stands for.
RefractometerResults alcohol_results(float sg, float zeiss) {
    RefractometerResults results;
    results.alcohol = alcohol_from_reading(sg, zeiss);
    results.original = of_plato(results.alcohol.original_extract);
    results.residual = of_plato(results.alcohol.real_extract);
    const float og = results.original.sg;
    const bool is_known = std::isfinite(og);
    results.apparent_attenuation = is_known ? apparent_attenuation(og, sg) : not_known;
    results.real_attenuation = is_known ? real_attenuation(og, sg) : not_known;
    return results;
}

} // namespace

std::array<RefractometerTool, 3> new_refractometer_tools() {
    return {{{RefractometerKind::raw_wort, {}, of_sg(1.01F)},
             {RefractometerKind::fermentation, {.brix = 8}, of_sg(1.05F)},
             {RefractometerKind::alcohol, {.brix = 8}, of_sg(1.02F)}}};
}

void open_refractometer(RefractometerTool& tool, const Settings& settings) {
    if (tool.kind == RefractometerKind::raw_wort)
        tool.reading.brix = brix_from_plato(tool.gravity.plato, settings);
    tool.reading = reading_of_brix(tool.reading.brix, settings);
}

RefractometerTool raw_wort_tool(float sg, const Settings& settings) {
    RefractometerTool tool{RefractometerKind::raw_wort, {}, of_sg(sg)};
    open_refractometer(tool, settings);
    return tool;
}

RefractometerTool finishing_tool(float og_plato, float fg_plato, const RefractometerPair& stored,
                                 const Settings& settings) {
    constexpr double same_gravity = 0.01; // Plato
    RefractometerTool tool{RefractometerKind::fermentation, {}, of_plato(og_plato)};
    const bool is_its_reading =
        stored.net_zeiss != 0 && std::abs(double{stored.plato} - fg_plato) <= same_gravity;
    tool.reading = is_its_reading
                       ? reading_of_net_zeiss(stored.net_zeiss, settings)
                       : reading_of_brix(implied_fermenting_reading(og_plato, fg_plato, settings), settings);
    return tool;
}

RefractometerTool alcohol_tool(float og_plato, float fg_plato, const AlcoholReading& stored,
                               const Settings& settings) {
    RefractometerTool tool{RefractometerKind::alcohol, {}, of_plato(fg_plato)};
    if (stored.is_entered()) {
        tool.gravity = of_plato(stored.fg_plato);
        tool.reading = reading_of_net_zeiss(stored.net_zeiss, settings);
        return tool;
    }
    tool.reading = reading_of_brix(implied_reading(og_plato, fg_plato, settings), settings);
    return tool;
}

RefractometerResults results_of(const RefractometerTool& tool, const Settings& settings) {
    if (tool.kind == RefractometerKind::alcohol)
        return alcohol_results(tool.gravity.sg, net_zeiss(tool, settings));
    RefractometerResults results;
    results.gravity = tool.kind == RefractometerKind::raw_wort
                          ? of_plato(plato_from_brix(tool.reading.brix, settings))
                          : of_sg(current_gravity(tool.gravity.plato, net_zeiss(tool, settings)));
    return results;
}

void take_reading(RefractometerTool& tool, const RefractometerReading& reading, const Settings& settings) {
    tool.reading = reading;
    if (tool.kind == RefractometerKind::raw_wort) tool.gravity = results_of(tool, settings).gravity;
}

RefractometerPair pair_of(const RefractometerTool& tool, const Settings& settings) {
    return {.plato = results_of(tool, settings).gravity.plato, .net_zeiss = net_zeiss(tool, settings)};
}

AlcoholReading alcohol_reading_of(const RefractometerTool& tool, const Settings& settings) {
    return {.net_zeiss = net_zeiss(tool, settings),
            .original_extract = results_of(tool, settings).alcohol.original_extract,
            .fg_plato = tool.gravity.plato};
}

void take_calibration(RefractometerTool& tool, CalibrationChange change, const Settings& settings) {
    auto reading = tool.reading;
    if (change == CalibrationChange::water_brix) reading.brix = recalibrated_brix(reading.ri, settings);
    if (change == CalibrationChange::water_zeiss || change == CalibrationChange::water_ri)
        reading = reading_of_brix(reading.brix, settings);
    take_reading(tool, reading, settings);
}

} // namespace wortlex
