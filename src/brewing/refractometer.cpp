#include "brewing/refractometer.h"

#include "base/number.h"
#include "measures/gravity.h"

#include <cmath>
#include <optional>

namespace wortlex {

float net_zeiss_from_brix(float brix, const Settings& settings) {
    const float net_brix = narrow(double{brix} - settings.water_brix);
    if (net_brix < 0.002) return 0;
    const float ri = narrow(double{net_brix} * net_brix * 5.5752e-6 + (net_brix * 0.0014323 + 1.333));
    return narrow(double{ri} * ri * 3485.0 + (2749.3 - ri * 6708.0));
}

AlcoholFigures alcohol_from_reading(float sg, float net_zeiss) {
    AlcoholFigures figures;
    figures.net_zeiss = net_zeiss;
    const float s = narrow((sg - 1.0) * 100);
    figures.real_extract = narrow(s * 1.298 + 0.251 + net_zeiss * 0.1179);
    figures.by_weight = narrow(0.323 - s * 2.774 + net_zeiss * 0.2691);
    const double a = figures.by_weight;
    figures.original_extract = narrow((a * 2.0665 + figures.real_extract) * 100 / (a * 1.0665 + 100));
    if (figures.by_weight < 0) figures.by_weight = figures.original_extract = 0;
    figures.by_volume = alcohol_by_volume(figures.by_weight, sg);
    return figures;
}

AlcoholFigures implied_alcohol(float og_plato, float fg_plato, const Settings& settings) {
    constexpr int most_steps = 100000;
    constexpr double step = 0.001, tolerance = 0.005;
    const float sg = plato_to_sg(fg_plato);
    const auto figures_at = [&](float brix) {
        return alcohol_from_reading(sg, net_zeiss_from_brix(brix, settings));
    };
    float brix = settings.water_brix;
    std::optional<float> last_difference;
    for (int count = 0; count < most_steps; ++count) {
        const auto figures = figures_at(brix);
        const float difference = narrow(std::abs(double{figures.original_extract} - og_plato));
        if (difference <= tolerance) {
            // Past the best fit: the step before it was the one.
            if (last_difference && difference > *last_difference) return figures_at(narrow(brix - step));
            last_difference = difference;
        }
        brix = narrow(brix + step);
    }
    return figures_at(8.0F);
}

} // namespace wortlex
