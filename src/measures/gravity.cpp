#include "measures/gravity.h"

#include "measures/rounding.h"

#include <algorithm>
#include <cmath>

namespace wortlex {
namespace {

// Plato of SG above 1.08: a s^3 + b s^2 + c s + d.
constexpr double strong_a = 112.53669, strong_b = -532.38466, strong_c = 980.81714, strong_d = -560.74186;

double sg_of_weak_wort(double p) {
    const double root = std::sqrt(p * p - 193.789 * p + 12219.5);
    const double x = std::cbrt(499370.0 * root + 499370.0 * p - 4.83861e7);
    return x == 0 ? 1.0 : 1.54482 - 173.22 / x + 0.00194539 * x;
}

// The real root of the cubic above, by Cardano. The sign of B turns at 1.0, not at 0.
double sg_of_strong_wort(double plato) {
    const double a = strong_a, b = strong_b, c = strong_c, d = strong_d - plato;
    const double u = 3 * c / a, v = b / a;
    const double p = (u - v * v) / 3;
    const double q = (2 * v * v * v - 9 * b * c / (a * a) + 27 * d / a) / 27;
    const double r = std::sqrt(q * q / 4 + p * p * p / 27);
    const double first = std::cbrt(-q / 2 + r);
    const double second = -q / 2 - r;
    const double sign = second >= 1.0 ? 1 : -1;
    return first + sign * std::cbrt(std::abs(second)) - b / (3 * a);
}

struct Extracts {
    double original;
    double apparent;
    double real;
};

// Balling: the real extract from the original and the apparent one, all in Plato.
Extracts extracts(float og, float fg) {
    const double original = sg_to_plato(og), apparent = sg_to_plato(fg);
    const double q = narrow(0.22 + 0.001 * original);
    return {original, apparent, narrow((q * original + apparent) / (q + 1))};
}

float not_negative(double x) {
    return narrow(std::max(x, 0.0));
}

} // namespace

float sg_from_points(float points) {
    return narrow(points / 1000.0 + 1);
}

float sg_to_plato(float sg) {
    const double s = trunc_to_precision(sg, 5);
    const double p = s > 1.08 ? strong_a * s * s * s + strong_b * s * s + strong_c * s + strong_d
                              : 135.997 * s * s * s - 630.272 * s * s + 1111.14 * s - 616.868;
    return trunc_to_precision(not_negative(p), 3);
}

float plato_to_sg(float plato) {
    const double p = trunc_to_precision(plato, 3);
    const double s = p <= 19.331 ? sg_of_weak_wort(p) : sg_of_strong_wort(p);
    return trunc_to_precision(narrow(std::max(s, 1.0)), 5);
}

float yield_from_sg(float sg) {
    if (!(sg > 1.0F)) return 0;
    return narrow(std::min(narrow((sg - 1.0) * 1000) / sucrose_points_default * 100, 100.0));
}

float sg_from_yield(float yield) {
    return narrow(std::min(yield, 100.0F) / 100.0 * sucrose_points_default / 1000 + 1);
}

float points_from_yield(float yield) {
    return narrow(std::min(yield, 100.0F) / 100.0 * sucrose_points_default);
}

float as_is_yield(double yield, float moisture) {
    return narrow(std::min(yield / 100.0 * (100.0 - moisture), 100.0));
}

float dry_yield(float yield, float moisture) {
    return narrow(std::min(yield * 100.0 / (100.0 - moisture), 100.0));
}

float hwe_from_points(float points) {
    return not_negative(narrow(points / sucrose_points_default * 100) * 3.86);
}

float extract_per_gallon(float sg) {
    return narrow(sg_to_plato(sg) * (0.99878786 * sg + 0.00121214) * 8.3306686 / 100);
}

float points_from_extract(float pounds) {
    if (pounds == 0) return 0;
    const auto missing = [pounds](double sg) { return double{pounds} - extract_per_gallon(narrow(sg)); };
    double lo = 0.999999999, hi = 2.0, mid = lo;
    double at_lo = missing(lo);
    if (at_lo * missing(hi) > 0) return -1;
    for (int round = 0; round < 50 && std::abs(hi - lo) > 1e-12; ++round) {
        mid = lo + (hi - lo) / 2;
        const double at_mid = missing(mid);
        if (at_lo * at_mid >= 0) {
            lo = mid;
            at_lo = at_mid;
        } else {
            hi = mid;
        }
    }
    return narrow((mid - 1) * 1000);
}

float alcohol_by_weight(float og, float fg) {
    if (og == 0 || fg == 0) return 0;
    const auto extract = extracts(og, fg);
    return not_negative((extract.original - extract.real) / (2.0665 - 0.010665 * extract.original));
}

float alcohol_by_volume(float by_weight, float fg) {
    if (by_weight == 0 || fg == 0) return 0;
    return not_negative(double{by_weight} * fg / 0.791);
}

float apparent_attenuation(float og, float fg) {
    if (og == 0 || fg == 0) return 0;
    const auto extract = extracts(og, fg);
    if (!(extract.original > 0)) return 0;
    return not_negative((extract.original - extract.apparent) * 100 / extract.original);
}

float real_attenuation(float og, float fg) {
    if (og == 0 || fg == 0) return 0;
    return real_attenuation_re(og, residual_extract(og, fg));
}

float residual_extract(float og, float fg) {
    return narrow(extracts(og, fg).real);
}

float real_attenuation_re(float og, float real_extract) {
    const double original = sg_to_plato(og), real = real_extract;
    if (og == 0 || !(original > 0)) return 0;
    return not_negative((original - real) * 100 / original * (1 / (1 - real * 0.005161)));
}

float potential_alcohol(float og) {
    return alcohol_by_volume(alcohol_by_weight(og, 1.0F), 1.0F);
}

} // namespace wortlex
