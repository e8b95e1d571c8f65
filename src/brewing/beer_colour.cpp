#include "brewing/beer_colour.h"

#include "base/number.h"

#include <algorithm>
#include <cmath>

namespace wortlex {
namespace {

float srm_of(float mcu, ColorFormula formula) {
    if (mcu == 0) return 0;
    switch (formula) {
    case ColorFormula::Morey:
        return narrow(1.4922 * std::pow(double{mcu}, 0.6859));
    case ColorFormula::Mosher:
        return narrow(0.3 * mcu + 4.7);
    case ColorFormula::Daniels:
        return narrow(0.2 * mcu + 8.4);
    }
    return 0;
}

std::uint32_t painted(std::int32_t channel, std::int32_t calibration, std::int32_t alpha) {
    // Wide enough for any table; the blend takes what a 32-bit channel can be.
    const auto calibrated = std::clamp<std::int64_t>(std::int64_t{channel} + calibration, -65536, 65536);
    const auto blended = blend_over_white(static_cast<std::int32_t>(calibrated), alpha);
    return static_cast<std::uint32_t>(std::clamp(blended, 0, 255));
}

} // namespace

BeerColour beer_colour(std::span<const MaltUse> malts, float batch_size, ColorFormula formula) {
    BeerColour colour;
    float weighted = 0, weight = 0;
    for (const auto& line : malts) {
        const double lovibond_pounds = double{line.record.colour} * line.amount;
        colour.mcu = narrow(colour.mcu + lovibond_pounds / batch_size);
        weighted = narrow(weighted + lovibond_pounds);
        weight = narrow(double{weight} + line.amount);
    }
    if (weight != 0) colour.average_lovibond = narrow(double{weighted} / weight);
    colour.srm = srm_of(colour.mcu, formula);
    return colour;
}

std::size_t color_row_index(float srm) {
    const double capped = std::min<double>(srm, top_srm);
    float row = narrow(capped / top_srm * color_rows - 1);
    if (row >= static_cast<float>(color_rows)) row = color_rows - 1;
    if (!(row >= 0)) row = 0;
    return static_cast<std::size_t>(row);
}

std::int32_t blend_over_white(std::int32_t channel, std::int32_t alpha) {
    const float c = narrow(channel / 255.0), a = narrow(alpha / 255.0);
    const float blended = narrow(double{c} * a + (1.0 - a) * 1);
    return truncate(blended * 255.0);
}

std::int32_t swatch_alpha(const ColorTable& table, float srm, const Settings& settings) {
    const auto& row = table.rows[color_row_index(srm)];
    std::int64_t alpha = 255;
    if (settings.alpha_mode == AlphaMode::from_table)
        alpha = std::int64_t{row.alpha} + settings.global_alpha_adjust;
    if (settings.alpha_mode == AlphaMode::global_value) alpha = settings.global_alpha;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(alpha, 0, 255));
}

std::uint32_t swatch_colour(const ColorTable& table, float srm, const Settings& settings) {
    const auto& row = table.rows[color_row_index(srm)];
    const auto alpha = swatch_alpha(table, srm, settings);
    return painted(row.red, settings.calibration_red, alpha) |
           painted(row.green, settings.calibration_green, alpha) << 8 |
           painted(row.blue, settings.calibration_blue, alpha) << 16;
}

} // namespace wortlex
