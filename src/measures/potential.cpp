#include "measures/potential.h"

#include "measures/gravity.h"
#include "measures/rounding.h"
#include "measures/units.h"

#include <algorithm>
#include <cmath>

namespace wortlex {
namespace {

constexpr double hwe_per_percent = 3.86;

float not_negative(float x) {
    return x < 0 ? 0 : x;
}

double points_of(float sg) {
    return (sg - 1.0) * 1000;
}

float plato_share(float line_sg, const ExtractTotals& totals) {
    const float og = sg_from_points(totals.og_points);
    const double plato = sg_to_plato(trunc_to_precision(og, 5));
    const double extract = extract_per_gallon(og);
    if (extract == 0 || totals.og_points / extract == 0) return trunc_to_precision(sg_to_plato(line_sg), 3);
    const double line_points = narrow(points_of(trunc_to_precision(line_sg, 5)));
    const double share = narrow(line_points / narrow(totals.og_points / extract));
    return trunc_to_precision(narrow(narrow(plato / extract) * share), 3);
}

// The yield that `yield_by_type` made `shown` of.
float fine_yield_of(float shown, const PotentialTraits& traits, YieldType type) {
    if (!traits.mashed) return shown;
    const bool as_is = type == YieldType::fine_as_is || type == YieldType::coarse_as_is;
    const bool coarse = type == YieldType::coarse_dry_basis || type == YieldType::coarse_as_is;
    const float dry = as_is ? dry_yield(shown, traits.moisture) : shown;
    return coarse ? narrow(dry + std::abs(double{dry} - traits.coarse_yield)) : dry;
}

} // namespace

double yield_by_type(float fine_yield, const PotentialTraits& traits, YieldType type) {
    if (!traits.mashed) return fine_yield;
    const double coarse = fine_yield - std::abs(double{fine_yield} - traits.coarse_yield);
    switch (type) {
    case YieldType::fine_as_is:
        return as_is_yield(fine_yield, traits.moisture);
    case YieldType::coarse_dry_basis:
        return coarse;
    case YieldType::coarse_as_is:
        return as_is_yield(coarse, traits.moisture);
    default:
        return fine_yield;
    }
}

float potential_to_shown(float sg, const PotentialTraits& traits, const Settings& settings) {
    if (settings.potential_display == PotentialDisplay::percent_yield)
        return not_negative(narrow(yield_by_type(yield_from_sg(sg), traits, settings.yield_type)));
    return potential_to_shown_plain(sg, settings.potential_display);
}

float potential_to_shown_plain(float sg, PotentialDisplay display) {
    switch (display) {
    case PotentialDisplay::points:
        return not_negative(trunc_to_precision(narrow(points_of(sg)), 3));
    case PotentialDisplay::hwe: {
        const double percent = narrow(points_of(sg) / sucrose_points_default * 100);
        return not_negative(trunc_to_precision(narrow(percent * hwe_per_percent), 3));
    }
    case PotentialDisplay::plato: {
        const double share = std::min(points_of(sg) / sucrose_points_default, 1.0);
        return not_negative(trunc_to_precision(narrow(share * sucrose_plato), 3));
    }
    default:
        return not_negative(sg);
    }
}

float potential_from_shown(float shown, const PotentialTraits& traits, const Settings& settings) {
    if (settings.potential_display != PotentialDisplay::percent_yield)
        return potential_from_shown_plain(shown, settings.potential_display);
    const float sg = sg_from_yield(fine_yield_of(shown, traits, settings.yield_type));
    return not_negative(trunc_to_precision(sg, 5));
}

float potential_from_shown_plain(float shown, PotentialDisplay display) {
    double sg = shown;
    if (display == PotentialDisplay::points) {
        sg = trunc_to_precision(shown, 3) / 1000.0 + 1;
    } else if (display == PotentialDisplay::hwe) {
        sg = narrow(narrow(shown / hwe_per_percent) / 100.0) * sucrose_points_default / 1000 + 1;
    } else if (display == PotentialDisplay::plato) {
        const double share = std::min(shown / sucrose_plato, 1.0);
        sg = std::min(share * sucrose_points_default, sucrose_points_default) / 1000 + 1;
    }
    return not_negative(trunc_to_precision(narrow(sg), 5));
}

float extract_to_shown(float line_sg, float line_extract_pounds, const ExtractTotals& totals,
                       const Settings& settings) {
    return extract_to_shown(line_sg, line_extract_pounds, totals, settings, settings.extract_display);
}

float extract_to_shown(float line_sg, float line_extract_pounds, const ExtractTotals& totals,
                       const Settings& settings, ExtractDisplay display) {
    const float pounds = trunc_to_precision(line_extract_pounds, 3);
    switch (display) {
    case ExtractDisplay::points:
        return not_negative(trunc_to_precision(narrow(points_of(line_sg)), 3));
    case ExtractDisplay::weight:
        return not_negative(grain_to_shown(pounds, settings));
    case ExtractDisplay::plato:
        return not_negative(plato_share(line_sg, totals));
    case ExtractDisplay::percent:
        return not_negative(narrow(pounds / totals.extract_pounds * 100));
    default:
        return not_negative(line_sg);
    }
}

} // namespace wortlex
