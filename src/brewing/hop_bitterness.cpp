#include "brewing/hop_bitterness.h"

#include "base/number.h"
#include "measures/gravity.h"
#include "measures/units.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace wortlex {
namespace {

// A row of a utilization table: it holds up to and including `last_minute`.
struct TableRow {
    int last_minute;
    float utilization;
};

template <std::size_t N>
float look_up(const std::array<TableRow, N>& table, float beyond, int minutes) {
    for (const auto& row : table) {
        if (minutes <= row.last_minute) return row.utilization;
    }
    return beyond;
}

float rager_utilization(int minutes) {
    constexpr std::array<TableRow, 14> table = {{{0, 0.0F},
                                                 {5, 0.05F},
                                                 {10, 0.06F},
                                                 {15, 0.08F},
                                                 {20, 0.101F},
                                                 {25, 0.121F},
                                                 {30, 0.153F},
                                                 {35, 0.188F},
                                                 {40, 0.228F},
                                                 {45, 0.269F},
                                                 {50, 0.281F},
                                                 {60, 0.30F},
                                                 {70, 0.31F},
                                                 {80, 0.32F}}};
    return look_up(table, 0.33F, minutes);
}

// Percent.
float garetz_utilization(int minutes) {
    constexpr std::array<TableRow, 12> table = {{{10, 0.0F},
                                                 {15, 2.0F},
                                                 {20, 5.0F},
                                                 {25, 8.0F},
                                                 {30, 11.0F},
                                                 {35, 14.0F},
                                                 {40, 16.0F},
                                                 {45, 18.0F},
                                                 {50, 19.0F},
                                                 {60, 20.0F},
                                                 {70, 21.0F},
                                                 {80, 22.0F}}};
    return look_up(table, 23.0F, minutes);
}

// Percent. The first row bitters too: late and dry hops count 5 percent.
float generic_utilization(int minutes) {
    constexpr std::array<TableRow, 6> table = {
        {{9, 5.0F}, {19, 12.0F}, {29, 15.0F}, {44, 19.0F}, {59, 22.0F}, {74, 24.0F}}};
    return look_up(table, 27.0F, minutes);
}

// The hop itself, in any of the three forms.
struct Addition {
    float alpha = 0; // percent
    int minutes = 0;
    HopForm form{};
    HopTiming timing{};
    bool form_always_counts = false;
    bool as_fraction = false; // utilization of Garetz and Generic, for display
};

// What it is boiled in.
struct Kettle {
    float batch = 0; // gallons
    float wort = 0;
    float sg = 1;
    float tinseth_gravity = 0; // SG - 1
    float desired_ibu = 0;
    float elevation = 0; // feet
    float bag = 1;
    float filter = 1;
};

// A formula read both ways: IBU = ounces x numerator / volume.
struct Yield {
    double numerator = 0;
    double volume = 1;
};

float adjusted_utilization(float utilization, const Addition& addition, const Settings& settings) {
    float u = utilization;
    if (settings.use_additional_utilization != 0 || addition.form_always_counts) {
        if (addition.form == HopForm::plug) u = narrow(double{u} * settings.plug_increase + u);
        if (addition.form == HopForm::pellet) u = narrow(double{u} * settings.pellet_increase + u);
    }
    u = narrow(double{u} * settings.kettle_factor);
    const auto changed_by = [u](std::int16_t percent) { return narrow(u + u * (percent / 100.0)); };
    if (addition.timing == HopTiming::first_wort) return changed_by(settings.first_wort_change);
    if (addition.timing == HopTiming::mash) return changed_by(settings.mash_hop_change);
    return u;
}

Yield rager(const Addition& addition, const Kettle& kettle, const Settings& settings, HopFactors& factors) {
    factors.concentration = narrow(double{kettle.batch} / kettle.wort);
    const float cf = factors.concentration;
    const float gravity = cf == 1.0F && kettle.sg <= 1.05
                              ? kettle.sg
                              : sg_from_points(narrow(narrow((kettle.sg - 1.0) * 1000) * double{cf}));
    const float adjustment = gravity > 1.05 ? narrow((gravity - 1.0 - 0.05) / 0.2) : 0.0F;
    factors.utilization = adjusted_utilization(rager_utilization(addition.minutes), addition, settings);
    factors.gravity = narrow(adjustment + 1.0);
    return {factors.utilization * (addition.alpha / 100.0) * 7462, double{kettle.batch} * factors.gravity};
}

// Garetz and Generic differ in their tables, their constants and, in `kettle`, in bag and filter.
Yield by_gravity_factor(float table_percent, double constant, const Addition& addition, const Kettle& kettle,
                        const Settings& settings, HopFactors& factors) {
    factors.concentration = narrow(double{kettle.batch} / kettle.wort);
    const float cf = factors.concentration;
    const float boil_gravity = narrow(double{cf} * (kettle.sg - 1.0) + 1);
    factors.gravity = boil_gravity > 1.05 ? narrow((boil_gravity - 1.05) / 0.2 + 1) : 1.0F;
    factors.temperature = kettle.elevation != 0 ? narrow(kettle.elevation / 550.0 * 0.02 + 1) : 1.0F;
    factors.hopping_rate = narrow(double{cf} * kettle.desired_ibu / 260 + 1);
    factors.combined = narrow(double{factors.gravity} * factors.temperature * kettle.bag * kettle.filter);
    const float start = addition.as_fraction ? narrow(table_percent / 100.0) : table_percent;
    factors.utilization = adjusted_utilization(start, addition, settings);
    const double percent = addition.as_fraction ? factors.utilization * 100.0 : factors.utilization;
    return {percent * addition.alpha * constant, double{kettle.batch} * factors.combined};
}

Yield tinseth(const Addition& addition, const Kettle& kettle, const Settings& settings, HopFactors& factors) {
    if (addition.minutes < 1) {
        factors.utilization = 0;
        return {0, kettle.batch};
    }
    const float bigness = narrow(1.65 * std::pow(0.000125, double{kettle.tinseth_gravity}));
    factors.gravity = bigness;
    const float boiled = narrow((1 - std::exp(-0.04 * addition.minutes)) / 4.15F * bigness);
    factors.utilization = adjusted_utilization(boiled, addition, settings);
    return {addition.alpha / 100.0 * 7490 * factors.utilization, kettle.batch};
}

Yield generic(const Addition& addition, Kettle kettle, const Settings& settings, HopFactors& factors) {
    kettle.bag = kettle.filter = 1;
    return by_gravity_factor(generic_utilization(addition.minutes), 0.7489, addition, kettle, settings,
                             factors);
}

std::optional<Yield> yield_by(HopFormulaCode formula, const Addition& addition, const Kettle& kettle,
                              const Settings& settings, HopFactors& factors) {
    switch (formula) {
    case HopFormulaCode::Rager:
        return rager(addition, kettle, settings, factors);
    case HopFormulaCode::Garetz:
        return by_gravity_factor(garetz_utilization(addition.minutes), 0.749, addition, kettle, settings,
                                 factors);
    case HopFormulaCode::Tinseth:
        return tinseth(addition, kettle, settings, factors);
    case HopFormulaCode::Generic:
        return generic(addition, kettle, settings, factors);
    }
    return std::nullopt;
}

Kettle kettle_of(const HopCalculator& calculator) {
    return {.batch = calculator.batch_volume,
            .wort = calculator.wort_volume,
            .sg = calculator.sg,
            .tinseth_gravity = narrow(calculator.sg - 1.0),
            .desired_ibu = calculator.ibu,
            .elevation = static_cast<float>(calculator.elevation),
            .bag = calculator.bag_used ? 1.01F : 1.0F,
            .filter = calculator.beer_filtered ? 1.02F : 1.0F};
}

HopTiming timing_of(const HopCalculator& calculator) {
    if (calculator.is_first_wort) return HopTiming::first_wort;
    return calculator.is_mash_hop ? HopTiming::mash : HopTiming::boil;
}

Addition addition_of(const HopCalculator& calculator, bool form_always_counts) {
    return {calculator.adjusted_alpha, calculator.boil_minutes, calculator.form,
            timing_of(calculator),     form_always_counts,      true};
}

} // namespace

std::string_view formula_word(HopFormulaCode formula) {
    switch (formula) {
    case HopFormulaCode::Rager:
        return "Rager";
    case HopFormulaCode::Garetz:
        return "Garetz";
    case HopFormulaCode::Tinseth:
        return "Tinseth";
    case HopFormulaCode::Generic:
        return "Daniels";
    }
    return "no formula";
}

float line_ibu(const HopUse& line, const HopKettle& kettle, const Settings& settings) {
    const Addition addition{line.alpha, std::min<int>(line.boil_time, kettle.boil_minutes), form(line.record),
                            hop_timing(line.boil_time, kettle.boil_minutes)};
    const Kettle shared{.batch = kettle.batch_size,
                        .wort = kettle.wort_size,
                        .sg = kettle.sg,
                        .tinseth_gravity = narrow((kettle.tinseth_points / 1000.0 + 1) - 1),
                        .desired_ibu = static_cast<float>(kettle.target_ibu),
                        .elevation = static_cast<float>(kettle.elevation)};
    HopFactors factors;
    const auto yield = yield_by(settings.HopFormula, addition, shared, settings, factors);
    if (!yield) return line.ibu;
    if (factors.utilization == 0) return 0;
    return narrow(line.amount * yield->numerator / yield->volume);
}

void ibu_from_weight(HopCalculator& calculator, const Settings& settings) {
    const auto formula = settings.HopFormula;
    // Here these two do not ask the setting whether the form counts.
    const bool form_always_counts = formula == HopFormulaCode::Rager || formula == HopFormulaCode::Tinseth;
    const auto yield = yield_by(formula, addition_of(calculator, form_always_counts), kettle_of(calculator),
                                settings, calculator.factors);
    if (!yield) return;
    if (calculator.factors.utilization != 0) {
        calculator.ibu = narrow(calculator.ounces * yield->numerator / yield->volume);
    } else if (formula == HopFormulaCode::Tinseth) {
        calculator.ibu = 0;
    }
}

void weight_from_ibu(HopCalculator& calculator, const Settings& settings) {
    const auto formula = settings.HopFormula;
    if (formula == HopFormulaCode::Garetz || formula == HopFormulaCode::Generic) {
        if (calculator.wort_volume <= 0) calculator.wort_volume = 1;
        if (calculator.batch_volume <= 0) calculator.batch_volume = 1;
    }
    const auto yield = yield_by(formula, addition_of(calculator, false), kettle_of(calculator), settings,
                                calculator.factors);
    if (!yield) return;
    if (formula == HopFormulaCode::Tinseth) {
        const bool divides = yield->numerator != 0;
        calculator.ounces = divides ? narrow(yield->volume * calculator.ibu / yield->numerator) : 0.0F;
    } else if (calculator.factors.utilization != 0) {
        calculator.ounces = narrow(yield->volume * calculator.ibu / yield->numerator);
    } else {
        return;
    }
    calculator.grams = narrow(calculator.ounces * grams_per_ounce);
}

float hbu(float ounces, float alpha) {
    return narrow(double{ounces} * alpha);
}

float mbu(float grams, float alpha) {
    return narrow(double{grams} * alpha);
}

float storage_share(StorageKind kind) {
    switch (kind) {
    case StorageKind::no_seal:
        return 1.0F;
    case StorageKind::inert_gas:
        return 0.5F;
    default:
        return 0.75F;
    }
}

float alpha_after_storage(float start_alpha, std::int16_t months, float lost_percent, float celsius,
                          float storage_share) {
    // From 35 degrees C down to -30, a row a degree; 1 at 20.
    constexpr std::array<float, 66> speed = {
        2.0F,   1.933F, 1.866F, 1.8F,    1.733F, 1.666F, 1.6F,   1.533F, 1.467F, 1.4F,   1.333F,
        1.267F, 1.2F,   1.133F, 1.0672F, 1.0F,   0.955F, 0.912F, 0.871F, 0.831F, 0.794F, 0.758F,
        0.724F, 0.691F, 0.66F,  0.63F,   0.602F, 0.574F, 0.548F, 0.524F, 0.5F,   0.477F, 0.456F,
        0.435F, 0.416F, 0.397F, 0.379F,  0.362F, 0.345F, 0.33F,  0.315F, 0.301F, 0.287F, 0.274F,
        0.262F, 0.25F,  0.239F, 0.228F,  0.218F, 0.208F, 0.198F, 0.189F, 0.181F, 0.173F, 0.165F,
        0.157F, 0.15F,  0.144F, 0.137F,  0.131F, 0.125F, 0.119F, 0.114F, 0.109F, 0.104F, 0.099F};
    const double row = std::clamp(65.0 - (static_cast<double>(truncate(celsius)) + 30), 0.0, 65.0);
    const float temperature_factor = speed[static_cast<std::size_t>(row)];
    const float days = narrow(months * 30.0);
    const float left = narrow(100.0 - lost_percent);
    const float share_left = left > 0 ? narrow(left / 100.0) : 0.001F;
    const float ratio = share_left != 0 ? narrow((5 * 100.0) / (share_left * 100.0)) : 1.0F;
    const float rate = narrow((std::log(double{ratio}) - std::log(5.0)) / 180);
    const float exponent = narrow(double{rate} * temperature_factor * storage_share * days);
    const double divisor = std::exp(double{exponent});
    return divisor == 0 ? 0.0F : std::max(narrow(start_alpha * (1 / divisor)), 0.0F);
}

} // namespace wortlex
