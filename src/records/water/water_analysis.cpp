#include "records/water/water_analysis.h"

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

} // namespace

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
