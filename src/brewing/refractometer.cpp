#include "brewing/refractometer.h"

#include "base/number.h"
#include "measures/gravity.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace wortlex {
namespace {

constexpr float reading_where_none_fits = 8.0F;
constexpr double reading_step = 0.001;

// All but the alcohol by volume, which the search has no need of.
AlcoholFigures extracts_from_reading(float sg, float net_zeiss) {
    AlcoholFigures figures;
    figures.net_zeiss = net_zeiss;
    const float s = narrow((sg - 1.0) * 100);
    figures.real_extract = narrow(s * 1.298 + 0.251 + net_zeiss * 0.1179);
    figures.by_weight = narrow(0.323 - s * 2.774 + net_zeiss * 0.2691);
    const double a = figures.by_weight;
    figures.original_extract = narrow((a * 2.0665 + figures.real_extract) * 100 / (a * 1.0665 + 100));
    if (figures.by_weight < 0) figures.by_weight = figures.original_extract = 0;
    return figures;
}

// Steps add up as they are stored.
float next_reading(float brix) {
    return narrow(brix + reading_step);
}

float reading_after(float brix, int steps) {
    for (int count = 0; count < steps; ++count) brix = next_reading(brix);
    return brix;
}

// Whether nothing between two readings comes near the goal: extracts rise with the reading, or fall with it,
// all the way. The margin is far more than what a float errs by.
bool lie_on_one_side(float first_plato, float last_plato, float goal) {
    constexpr float margin = 0.05F;
    return std::max(first_plato, last_plato) < goal - margin ||
           std::min(first_plato, last_plato) > goal + margin;
}

bool lie_still(float first_plato, float last_plato) {
    return first_plato == last_plato || (std::isnan(first_plato) && std::isnan(last_plato));
}

// Steps up from water to where `plato_at` a Brix reading lies closest to `goal`. Most of the way is far from
// it.
template <class PlatoAt>
float fitting_reading(float goal, const Settings& settings, PlatoAt plato_at) {
    constexpr int stretches = 1000, stretch_steps = 100;
    constexpr double tolerance = 0.005;
    if (!std::isfinite(goal)) return reading_where_none_fits;
    float brix = settings.water_brix;
    std::optional<float> last_difference;
    for (int stretch = 0; stretch < stretches; ++stretch) {
        const float end = reading_after(brix, stretch_steps);
        const float first = plato_at(brix), last = plato_at(end);
        if (lie_on_one_side(first, last, goal)) {
            brix = end;
            continue;
        }
        const int steps = lie_still(first, last) ? 1 : stretch_steps;
        for (int count = 0; count < steps; ++count, brix = next_reading(brix)) {
            const float difference = narrow(std::abs(double{plato_at(brix)} - goal));
            if (!(difference <= tolerance)) continue;
            // Past the best fit: the step before it was the one.
            if (last_difference && difference > *last_difference) return narrow(brix - reading_step);
            last_difference = difference;
        }
        brix = end;
    }
    return reading_where_none_fits;
}

} // namespace

AlcoholFigures alcohol_from_reading(float sg, float net_zeiss) {
    auto figures = extracts_from_reading(sg, net_zeiss);
    figures.by_volume = alcohol_by_volume(figures.by_weight, sg);
    return figures;
}

float current_gravity(float original_plato, float net_zeiss) {
    const double p = original_plato, z = net_zeiss;
    const double part = 1e9 * -1.83696 + 1e9 * 2.00689 * p - 1e9 * 1.34799 * z + 1e6 * 5.7399 * p * z;
    const double whole = 1e9 * -8.86894 + 1e7 * 5.91694 * p;
    return narrow(part / whole / 100 + 1);
}

float implied_reading(float og_plato, float fg_plato, const Settings& settings) {
    const float sg = plato_to_sg(fg_plato);
    return fitting_reading(og_plato, settings, [&](float brix) {
        return extracts_from_reading(sg, net_zeiss_from_brix(brix, settings)).original_extract;
    });
}

float implied_fermenting_reading(float og_plato, float fg_plato, const Settings& settings) {
    return fitting_reading(fg_plato, settings, [&](float brix) {
        return sg_to_plato(current_gravity(og_plato, net_zeiss_from_brix(brix, settings)));
    });
}

AlcoholFigures implied_alcohol(float og_plato, float fg_plato, const Settings& settings) {
    const float brix = implied_reading(og_plato, fg_plato, settings);
    return alcohol_from_reading(plato_to_sg(fg_plato), net_zeiss_from_brix(brix, settings));
}

} // namespace wortlex
