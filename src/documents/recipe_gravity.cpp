#include "documents/recipe_gravity.h"

#include "base/number.h"
#include "measures/gravity.h"
#include "measures/potential.h"
#include "measures/rounding.h"

#include <algorithm>

namespace wortlex {
namespace {

bool is_method_2(const Settings& settings) {
    return settings.efficiency_mode >= EfficiencyMode::method_2;
}

PotentialTraits traits_of(const MaltRecord& malt) {
    return {malt.moisture, malt.coarse_yield, is_mashed(malt)};
}

// The share of its weight that a malt would give as extract to a perfect brewer, under Method #1.
double full_yield(const MaltRecord& malt, const Settings& settings) {
    if (!(malt.potential >= 1.0F)) return 0;
    return yield_by_type(yield_from_sg(malt.potential), traits_of(malt), settings.yield_type) / 100.0;
}

double mashed_yield(const MaltRecord& malt, float efficiency, const Settings& settings) {
    if (is_method_2(settings)) return efficiency;
    return double{efficiency} * narrow(full_yield(malt, settings));
}

double unmashed_yield(const MaltRecord& malt, const Settings& settings) {
    return is_method_2(settings) ? yield_from_sg(malt.potential) / 100.0 : full_yield(malt, settings);
}

// The share of its weight that a line gives to this brewer.
double line_yield(const MaltRecord& malt, float efficiency, const Settings& settings) {
    return is_mashed(malt) ? mashed_yield(malt, efficiency, settings) : unmashed_yield(malt, settings);
}

double total_extract(const BrewDocument& document, const Settings& settings) {
    double extract = 0;
    for (const auto& line : document.malts)
        extract += line.amount * line_yield(line.record, document.efficiency, settings);
    return extract;
}

double sucrose_in_force(const BrewDocument& document, float gallons, const Settings& settings) {
    if (settings.gravity_base == GravityBase::points) return settings.sucrose_value;
    return variable_sucrose_value(total_extract(document, settings), gallons);
}

// The summand of a line: points x gallons, or pounds of extract.
double line_value(double yield, float amount, double sucrose, const Settings& settings) {
    return settings.gravity_base == GravityBase::points ? sucrose * yield * amount : amount * yield;
}

float points_of_total(double value, double gallons, const Settings& settings) {
    const float per_gallon = narrow(value / gallons);
    return settings.gravity_base == GravityBase::points ? per_gallon : points_from_extract(per_gallon);
}

// Which lines are asked for what they could give at best.
enum class MaltShare { all, mashed, other };

// What a line could give at best. Method #2 takes a mashed line for pure extract.
double best_yield(const MaltRecord& malt, MaltShare share, const Settings& settings) {
    if (!is_method_2(settings)) return full_yield(malt, settings);
    if (is_mashed(malt)) return 1;
    const double yield = share == MaltShare::other
                             ? (trunc_5(malt.potential) - 1) * 1000 / sucrose_points_default
                             : yield_from_sg(malt.potential) / 100.0;
    return std::min(yield, 1.0);
}

bool belongs_to(const MaltRecord& malt, MaltShare share) {
    return share == MaltShare::all || is_mashed(malt) == (share == MaltShare::mashed);
}

float points_of_share(const BrewDocument& document, MaltShare share, const Settings& settings) {
    double total = 0;
    for (const auto& line : document.malts) {
        if (belongs_to(line.record, share))
            total += line_value(best_yield(line.record, share, settings), line.amount, settings.sucrose_value,
                                settings);
    }
    return total > 0 ? points_of_total(total, document.batch_size, settings) : 0.0F;
}

} // namespace

float compute_og(BrewDocument& document, RecipeFigures& figures, const Settings& settings) {
    if (document.malts.empty()) return 0;
    const double sucrose = sucrose_in_force(document, document.batch_size, settings);
    const bool by_points = settings.gravity_base == GravityBase::points;
    figures.lines.resize(document.malts.size());
    figures.total_value = figures.total_extract_pounds = 0;
    for (std::size_t i = 0; i < document.malts.size(); ++i) {
        auto& line = document.malts[i];
        auto& shown = figures.lines[i];
        const double yield = line_yield(line.record, document.efficiency, settings);
        shown.line_extract = line.amount * yield;
        shown.line_value = line_value(yield, line.amount, sucrose, settings);
        line.points = narrow(by_points ? shown.line_value / document.batch_size
                                       : shown.line_extract / document.batch_size * sucrose);
        shown.line_sg = trunc_5(line.points) / 1000 + 1;
        figures.total_value += shown.line_value;
        figures.total_extract_pounds += shown.line_extract;
    }
    figures.recipe_sucrose = sucrose;
    figures.tinseth_points =
        points_of_total(figures.total_value, double{document.batch_size} * settings.tinseth_factor, settings);
    total_grain_update(document, figures);
    return points_of_total(figures.total_value, document.batch_size, settings);
}

float compute_wort_points(const BrewDocument& document, const Settings& settings) {
    if (document.malts.empty()) return 0;
    const double sucrose = sucrose_in_force(document, document.wort_size, settings);
    double total = 0;
    for (const auto& line : document.malts) {
        double yield = line_yield(line.record, document.efficiency, settings);
        if (is_method_2(settings) && !is_mashed(line.record)) yield = std::min(yield, 1.0);
        total += line_value(yield, line.amount, sucrose, settings);
    }
    return points_of_total(total, document.wort_size, settings);
}

// The polynomial in s is degrees Plato at the specific gravity s; times s and a hundredth of the 8.33041
// pounds that a gallon of water weighs it is the extract of a gallon of wort in pounds. The first guess is a
// fit of its inverse.
double variable_sucrose_value(double extract_pounds, float gallons) {
    const double x = extract_pounds / trunc_5(gallons);
    const auto extract = [](double s) {
        return (135.997 * s * s * s * s - 630.272 * s * s * s + 1111.14 * s * s - 616.868 * s) * 0.0833041;
    };
    const auto slope = [](double s) {
        return (543.988 * s * s * s - 1890.816 * s * s + 2222.28 * s - 616.868) * 0.0833041;
    };
    double s = (46.367 * x + 0.021601 - 0.21989 * x * x) / 1000 + 1;
    if (slope(s) != 0) s += (extract(s) - x) / -slope(s); // one step of Newton
    const double p = 135.997 * s * s * s - 630.272 * s * s + 1111.14 * s - 616.868;
    return 46.726 - 0.16683 * p + 0.027607 * p * p - 0.0025471 * p * p * p + 0.00011221 * p * p * p * p -
           0.0000018845 * p * p * p * p * p;
}

float potential_points(const BrewDocument& document, const Settings& settings) {
    return points_of_share(document, MaltShare::all, settings);
}

float mash_potential_points(const BrewDocument& document, const Settings& settings) {
    return points_of_share(document, MaltShare::mashed, settings);
}

float other_potential_points(const BrewDocument& document, const Settings& settings) {
    return points_of_share(document, MaltShare::other, settings);
}

void hold_gravity(BrewDocument& document, RecipeFigures& figures, float& locked_efficiency,
                  const Settings& settings) {
    for (auto& line : document.malts) {
        if (!is_mashed(line.record)) continue;
        line.points = 0;
        if (!is_method_2(settings) && !(line.record.potential >= 1.0F)) continue;
        const double full = is_method_2(settings) ? 1.0 : full_yield(line.record, settings);
        const double extract = line.amount * (locked_efficiency * full);
        if (document.efficiency * full != 0) line.amount = narrow(extract / (document.efficiency * full));
    }
    locked_efficiency = document.efficiency;
    total_grain_update(document, figures);
}

void total_grain_update(const BrewDocument& document, RecipeFigures& figures) {
    figures.total_grain = 0;
    for (const auto& line : document.malts)
        figures.total_grain = narrow(double{figures.total_grain} + line.amount);
}

void mash_grain_update(const BrewDocument& document, RecipeFigures& figures) {
    figures.mash_grain = 0;
    for (const auto& line : document.malts) {
        if (is_mashed(line.record)) figures.mash_grain = narrow(double{figures.mash_grain} + line.amount);
    }
}

bool has_mashable_grain(const BrewDocument& document) {
    return document.recipe_kind != RecipeKind::extract &&
           std::any_of(document.malts.begin(), document.malts.end(), [](const MaltUse& line) {
               return line.record.malt_type == MaltType::grain && line.amount > 0;
           });
}

} // namespace wortlex
