#include "databases/water_hardness.h"

#include "base/number.h"
#include "brewing/water_ph.h"

#include <cmath>
#include <memory>

namespace wortlex {
namespace {

constexpr double caco3_equivalent = 50.0; // grams a mole of charge, as are the other two
constexpr double calcium_equivalent = 20.0;
constexpr double magnesium_equivalent = 12.1;

constexpr float lowest_ph = 4.0F, highest_ph = 12.0F; // of the alkalinity converter

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
