#include "brewing/refractometer_scales.h"

#include "base/number.h"

#include <cmath>

namespace wortlex {
namespace {

constexpr double index_of_water = 1.33299;
constexpr double recalibrated_index_of_water = 1.333299; // not the same, and both are in use
constexpr double least_net_brix = 0.002;

// What an instrument's index lies off.
double index_offset(const Settings& settings) {
    return settings.water_ri - index_of_water;
}

float zeiss_of_index(double index) {
    return narrow(index * index * 3485.0 + (2749.3 - index * 6708.0));
}

float index_of_net_brix(double brix) {
    return narrow(brix * brix * 5.5752e-6 + (brix * 0.0014323 + 1.333));
}

float brix_of_index(double index, const Settings& settings) {
    constexpr double millions = 1e6;
    return narrow((std::sqrt(index - 1.24101) * (millions * 5.90297) + millions * -1.79038) * 7.17463e-5 +
                  settings.water_brix);
}

// None below; what is no number stays so.
float above_water(float reading, float water) {
    const float net = narrow(double{reading} - water);
    return net < 0 ? 0 : net;
}

float net_index(float ri, const Settings& settings) {
    return narrow(ri - index_offset(settings));
}

float brix_from_ri(float ri, double threshold, const Settings& settings) {
    const float index = net_index(ri, settings);
    return index >= threshold ? brix_of_index(index, settings) : settings.water_brix;
}

float zeiss_from_ri(float ri, const Settings& settings) {
    const float index = net_index(ri, settings);
    return narrow((index >= index_of_water ? zeiss_of_index(index) : 0.0) + settings.water_zeiss);
}

} // namespace

float net_zeiss_from_brix(float brix, const Settings& settings) {
    const float net_brix = narrow(double{brix} - settings.water_brix);
    return net_brix < least_net_brix ? 0 : zeiss_of_index(index_of_net_brix(net_brix));
}

RefractometerReading reading_of_brix(float brix, const Settings& settings) {
    const float net_brix = narrow(double{brix} - settings.water_brix);
    const float zeiss = narrow(double{net_zeiss_from_brix(brix, settings)} + settings.water_zeiss);
    if (net_brix < least_net_brix) return {brix, zeiss, settings.water_ri};
    return {brix, zeiss, narrow(index_of_net_brix(net_brix) + index_offset(settings))};
}

RefractometerReading reading_of_zeiss(float zeiss, const Settings& settings) {
    const float net_zeiss = narrow(double{zeiss} - settings.water_zeiss);
    const float index = narrow((std::sqrt(net_zeiss + 478.624) * 1180.68 + 67080.0) * 1.43472e-5);
    return {brix_of_index(index, settings), zeiss, narrow(index + index_offset(settings))};
}

RefractometerReading reading_of_ri(float ri, const Settings& settings) {
    return {brix_from_ri(ri, index_of_water, settings), zeiss_from_ri(ri, settings), ri};
}

float recalibrated_brix(float ri, const Settings& settings) {
    return brix_from_ri(ri, recalibrated_index_of_water, settings);
}

RefractometerReading net_reading(const RefractometerReading& reading, const Settings& settings) {
    return {above_water(reading.brix, settings.water_brix), above_water(reading.zeiss, settings.water_zeiss),
            net_index(reading.ri, settings)};
}

float plato_from_brix(float brix, const Settings& settings) {
    if (settings.brix_correction == 0) return 0;
    return narrow((double{brix} - settings.water_brix) / settings.brix_correction);
}

float brix_from_plato(float plato, const Settings& settings) {
    return narrow(double{plato} * settings.brix_correction + settings.water_brix);
}

} // namespace wortlex
