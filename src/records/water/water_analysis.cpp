#include "records/water/water_analysis.h"

#include <algorithm>
#include <cmath>

namespace wortlex {
namespace {

void make_number(float& figure) {
    if (!std::isfinite(figure)) figure = 0;
}

void make_numbers(WaterRecord& water) {
    for (const auto& ion : ions) make_number(water.*ion.ppm);
    make_number(water.reserved_39);
    make_number(water.ph);
}

void make_numbers(WaterAnalysis& analysis) {
    for (auto& rate : analysis.rates) make_number(rate);
    for (auto* const figure : {&analysis.mash_gallons, &analysis.mash_quarts, &analysis.sparge_gallons,
                               &analysis.sparge_quarts, &analysis.dilution_rate})
        make_number(*figure);
    for (auto& salt : analysis.salts) make_numbers(salt);
    for (auto* const water :
         {&analysis.target, &analysis.source, &analysis.difference, &analysis.totals, &analysis.result})
        make_numbers(*water);
}

bool is_up_to(float figure, float most) {
    return figure >= 0 && figure <= most;
}

bool is_plausible(const WaterRecord& water) {
    return is_line(water.name) && ends(water.known_for) && is_up_to(water.ph, most_ph) &&
           is_up_to(water.reserved_39, most_ppm) &&
           std::all_of(ions.begin(), ions.end(),
                       [&](const Ion& ion) { return is_up_to(water.*ion.ppm, most_ppm); });
}

} // namespace

bool is_plausible(const WaterAnalysis& analysis) {
    constexpr float most_gallons = 31 * most_water, most_quarts = 4 * most_gallons;
    return std::all_of(analysis.rates.begin(), analysis.rates.end(),
                       [](float rate) { return is_up_to(rate, most_salt_rate); }) &&
           is_up_to(analysis.mash_gallons, most_gallons) && is_up_to(analysis.mash_quarts, most_quarts) &&
           is_up_to(analysis.sparge_gallons, most_gallons) && is_up_to(analysis.sparge_quarts, most_quarts) &&
           is_plausible(analysis.target) && is_plausible(analysis.source) &&
           is_up_to(analysis.totals.ph, most_ph_of_salts) && is_up_to(analysis.dilution_rate, 1);
}

ReadWaterAnalysis read_water_analysis(ByteView file) {
    ReadWaterAnalysis read;
    ByteReader reader(file);
    reader.read(read.analysis, water_analysis_layout);
    make_numbers(read.analysis);
    read.is_complete = reader.complete();
    return read;
}

Bytes water_analysis_bytes(const WaterAnalysis& analysis) {
    return encoded(analysis, water_analysis_layout);
}

} // namespace wortlex
