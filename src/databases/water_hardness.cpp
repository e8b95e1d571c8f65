#include "databases/water_hardness.h"

#include "base/number.h"

#include <cmath>
#include <memory>

namespace wortlex {
namespace {

constexpr double caco3_equivalent = 50.0; // grams a mole of charge, as are the other two
constexpr double calcium_equivalent = 20.0;
constexpr double magnesium_equivalent = 12.1;

constexpr float neutral_ph = 7.0F;
constexpr float lowest_ph = 4.0F, highest_ph = 12.0F; // of the alkalinity converter

// Positive charges less negative ones, in moles a litre, of water with `carbon` moles of bicarbonate salt.
double charge_excess(double ph, double carbon) {
    const double first = std::pow(10.0, ph - 6.38), second = std::pow(10.0, ph - 10.32);
    const double bicarbonate = first * carbon / (first + 1 + first * second);
    const double hydroxide = std::pow(10.0, ph - 14.0);
    return (std::pow(10.0, -ph) + carbon) - (hydroxide + 2 * second * bicarbonate + bicarbonate);
}

void caco3_row(Rows& rows, float& caco3) {
    rows.number("caco3", caco3).label("C&aCO3").range(0.0F, 5000.0F).step(1.0F).outside(Outside::clamp);
}

void hardness_form(Form& form, float& ion, const char* symbol, float (*ion_of)(float hardness)) {
    const auto hardness = std::make_shared<float>(0.0F);
    auto& rows = form.group();
    caco3_row(rows, *hardness);
    rows.shown_number(
            "result", [hardness, ion_of] { return ion_of(*hardness); }, "%0.2f")
        .label(symbol);
    form.on_accept([hardness, ion_of, &ion] { ion = ion_of(*hardness); });
}

struct Alkalinity {
    float caco3 = 0;
    float ph = neutral_ph;

    float bicarbonate() const { return narrow(carbonates_of(caco3, ph).bicarbonate); }
};

} // namespace

Carbonates carbonates_of(float alkalinity, float ph) {
    const double first = std::pow(10.0, ph - 6.48), second = std::pow(10.0, ph - 10.33);
    const double all = 1 + first + first * second;
    const double acid = 1 / all, single = first / all, twice = first * second / all;
    const double total = alkalinity / caco3_equivalent / (single + 2 * twice);
    return {.carbonic_acid = acid * total * 44,
            .bicarbonate = single * total * 61,
            .carbonate = twice * total * 60};
}

float calcium_of(float hardness) {
    return narrow(hardness / caco3_equivalent * calcium_equivalent);
}

float magnesium_of(float hardness) {
    return narrow(hardness / caco3_equivalent * magnesium_equivalent);
}

float ph_of_bicarbonate(float bicarbonate) {
    if (!(bicarbonate > 0)) return neutral_ph;
    const double carbon = bicarbonate / 61017.1;
    double low = neutral_ph, high = 8.35, ph = neutral_ph;
    for (int round = 0; round < 200; ++round) {
        const double excess = charge_excess(ph, carbon);
        if (std::abs(excess) <= 1e-10) break;
        (excess > 0 ? low : high) = ph;
        ph = low + (high - low) / 2;
    }
    return narrow(ph);
}

void calcium_hardness_form(Form& form, WaterRecord& water) {
    hardness_form(form, water.calcium, "Ca", calcium_of);
}

void magnesium_hardness_form(Form& form, WaterRecord& water) {
    hardness_form(form, water.magnesium, "Mg", magnesium_of);
}

void alkalinity_form(Form& form, WaterRecord& water) {
    const auto alkalinity = std::make_shared<Alkalinity>();
    if (water.ph >= lowest_ph && water.ph <= highest_ph) alkalinity->ph = water.ph;
    auto& rows = form.group();
    caco3_row(rows, alkalinity->caco3);
    rows.number("ph", alkalinity->ph)
        .label("&PH")
        .range(lowest_ph, highest_ph)
        .step(0.25F)
        .outside(Outside::clamp);
    rows.shown_number(
            "result", [alkalinity] { return alkalinity->bicarbonate(); }, "%0.2f")
        .label("HCO3");
    form.on_accept([alkalinity, &water] {
        water.bicarbonate = alkalinity->bicarbonate();
        water.ph = alkalinity->ph;
    });
}

} // namespace wortlex
