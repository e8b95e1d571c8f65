// The codes of the settings as they stand in the file, each in the width of its field.
#pragma once

#include <cstdint>

namespace wortlex {

enum class HopFormulaCode : std::uint8_t { Rager = 0, Garetz = 1, Tinseth = 2, Generic = 3 };
enum class ColorFormula : std::uint8_t { Morey = 0, Mosher = 1, Daniels = 2 };
enum class ScheduleKind : std::uint8_t { simple = 0, complex = 1 };
enum class NewSessionDate : std::uint8_t { today = 0, tomorrow = 1 };
/// Of volumes, weights and pressure.
enum class Units : std::uint8_t { metric = 0, american = 1 };
constexpr bool is_american(Units units) {
    return units == Units::american;
}
enum class SystemMode : std::uint8_t { home_brewer = 0, pro_brewer = 1 };
enum class StyleBook : std::uint8_t { aha = 0, bjcp = 1 };
enum class DateFormat : std::uint8_t { month_day_year = 0, year_month_day = 1, day_name_year = 2 };
enum class ColorUnits : std::uint8_t { srm = 0, ebc_new = 1, ebc_traditional = 2 };
enum class PotentialDisplay : std::uint8_t { sg = 0, points = 1, hwe = 2, plato = 3, percent_yield = 4 };
enum class TemperatureUnits : std::uint8_t { celsius = 0, fahrenheit = 1 };
enum class BitteringUnit : std::uint8_t { mbu = 0, hbu = 1 };
enum class EfficiencyMethod : std::uint32_t { method_1 = 0, method_2 = 1 };
enum class ExtractDisplay : std::uint32_t { sg = 0, points = 1, weight = 2, plato = 3, percent = 4 };
enum class GravityBase : std::uint32_t { points = 0, mass = 1 };
enum class YieldType : std::uint32_t {
    fine_dry_basis = 0,
    fine_as_is = 1,
    coarse_dry_basis = 2,
    coarse_as_is = 3
};
enum class SpikeThickness : std::int32_t { thin = 1, thick = 2 };
enum class SpikeLine : std::int32_t { dashed = 0, solid = 1 };
enum class AlphaMode : std::int32_t { not_used = 0, global_value = 1, from_table = 2 };

/// How a document's gravity is predicted; the two codes of Method #1 differ only in what is shown.
enum class EfficiencyMode : std::uint8_t { method_1 = 0, method_1_yield = 1, method_2 = 2 };

} // namespace wortlex
