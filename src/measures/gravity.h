// The scales of gravity: SG, points ((SG - 1) x 1000), degrees Plato, percent yield, pounds of extract per
// gallon; and what two gravities tell of alcohol and attenuation.
//
// The polynomials between SG and Plato are the usual fits of the brewing tables; alcohol and real
// extract follow Balling.
#pragma once

namespace wortlex {

inline constexpr double sucrose_points_default =
    46.21;                                       ///< points of a pound of sucrose in a gallon: 100 % yield
inline constexpr double sucrose_plato = 11.5536; ///< degrees Plato of the same solution

/// Points above water as SG.
float sg_from_points(float points);

float sg_to_plato(float sg);
/// Never below 1.0.
float plato_to_sg(float plato);

/// Percent yield of a potential, 0 to 100.
float yield_from_sg(float sg);
float sg_from_yield(float yield);
/// The points of a yield as a fraction of the sucrose points, that is before the last two steps to SG.
float points_from_yield(float yield);
/// A dry basis yield with the moisture (percent) in it, and back; at most 100.
float as_is_yield(double yield, float moisture);
float dry_yield(float yield, float moisture);
/// Points as hot water extract, litre-degrees per kilogram; not below 0.
float hwe_from_points(float points);

/// Pounds of extract in a gallon of wort of this SG.
float extract_per_gallon(float sg);
/// The points of a wort that holds `pounds` of extract per gallon, by bisection between SG 1 and 2;
/// -1 when there is none, 0 for 0 pounds.
float points_from_extract(float pounds);

/// All four take SG; a zero in either gravity gives 0, and no result is below 0.
float alcohol_by_weight(float og, float fg);
float alcohol_by_volume(float by_weight, float fg);
/// Percent.
float apparent_attenuation(float og, float fg);
float real_attenuation(float og, float fg);
/// What is left in the beer, in Plato, of the original and the apparent extract.
float residual_extract(float og, float fg);
/// With the real extract (Plato) given, as a refractometer tells it.
float real_attenuation_re(float og, float real_extract);
/// Percent by volume of a wort fermented down to SG 1.
float potential_alcohol(float og);

} // namespace wortlex
