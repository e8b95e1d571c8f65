// The pH of water by its carbonate: where the charges cancel out.
#pragma once

namespace wortlex {

/// What water without carbonate has.
inline constexpr float neutral_ph = 7.0F;

/// The pH, 7 to 8.35, of a water with nothing but this bicarbonate (ppm); 7 where there is none.
float ph_of_bicarbonate(float bicarbonate);

/// The same for what salts bring (ppm, as they tell their carbonate), by a balance whose sums are kept in
/// single precision. They are part of the figure.
float ph_of_salts(float carbonate);

} // namespace wortlex
