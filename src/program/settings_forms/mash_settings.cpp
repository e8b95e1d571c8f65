#include "program/settings_forms/mash_settings.h"

#include "base/number.h"
#include "measures/unit_words.h"
#include "measures/units.h"
#include "program/settings_forms/settings_rows.h"

#include <memory>

namespace wortlex {
namespace {

constexpr double litres_per_kilogram = 2.0888; // of a quart a pound
constexpr double litres_per_quart = 0.94696;

// What the image has in thousandths, as the dialog holds it until OK.
struct Ratios {
    float heat_capacity, thick, medium, thin;
};

float from_thousandths(std::int32_t stored) {
    return narrow(stored / 1000.0);
}

// Truncates; the 0.0009 lets 0.65 survive the float store.
std::int32_t to_thousandths(float value) {
    return truncate((value + 0.0009) * 1000);
}

Ratios ratios_of(const SystemSettings& image) {
    return {from_thousandths(image.malt_heat_capacity), from_thousandths(image.thick_decoction),
            from_thousandths(image.medium_decoction), from_thousandths(image.thin_decoction)};
}

void store_ratios(const Ratios& ratios, SystemSettings& image) {
    image.malt_heat_capacity = to_thousandths(ratios.heat_capacity);
    image.thick_decoction = to_thousandths(ratios.thick);
    image.medium_decoction = to_thousandths(ratios.medium);
    image.thin_decoction = to_thousandths(ratios.thin);
}

// A number that metric volumes show multiplied by `factor`. Its ranges are of what is shown.
NumberRow& scaled_row(Rows& rows, const char* key, float& value, double factor, const SystemSettings& image) {
    const auto scale = [&image, factor] { return has_metric_volumes(image) ? factor : 1.0; };
    return rows.number(key, value)
        .shown_as([scale](float stored) { return narrow(stored * scale()); },
                  [scale](float shown) { return narrow(shown / scale()); })
        .outside(Outside::clamp);
}

NumberRow& ratio_row(Rows& rows, const char* key, float& ratio, const SystemSettings& image) {
    return scaled_row(rows, key, ratio, litres_per_kilogram, image)
        .range(setting_range::mash_ratio.low, setting_range::mash_ratio.high)
        .step(0.05F)
        .format("%2.2f");
}

// The words of American and of metric volumes.
Live<std::string> by_volume(const SystemSettings& image, const char* american, const char* metric) {
    return [&image, american, metric] { return has_metric_volumes(image) ? metric : american; };
}

void mash_water_rows(Rows& rows, SystemSettings& image) {
    ratio_row(rows, "quarts_per_pound", image.quarts_per_pound, image)
        .label(by_volume(image, "&QTS Water / LBS Grain Ratio:", "&L Water / KG Grain Ratio:"));
    scaled_row(rows, "grain_absorption", image.grain_absorption, absorption_per_kilogram, image)
        .label("Grain &Absorption Rate:")
        .typed(setting_range::absorption.low, setting_range::absorption.high)
        .spun(0.05F, setting_range::absorption.high, 0.05F)
        .format("%6.2f")
        .unit(by_volume(image, "Gallons Per LBS", "Liters Per kg"));
    scaled_row(rows, "grain_water_volume", image.grain_water_volume, litres_per_quart, image)
        .label(by_volume(image, "&1 Qt Water + 1 LBS Grain:", "&0.95 L Water + 0.45 kg Grain:"))
        .typed(setting_range::grain_water_volume.low, setting_range::grain_water_volume.high)
        .spun([&image] { return has_metric_volumes(image) ? 0.75F : 1.0F; },
              setting_range::grain_water_volume.high, 0.0025F)
        .format("%6.4f")
        .unit(by_volume(image, "Volume (Qts)", "Volume (L)"));
    percent_row(rows, "cooling_shrink", image.cooling_shrink, setting_range::cooling_percent)
        .label("Wort &Cooling Shrinkage:");
}

void heat_rows(Rows& rows, SystemSettings& image, Ratios& ratios) {
    held_within(rows.number("tun_thermal_mass", image.tun_thermal_mass),
                {setting_range::thermal_mass, 0.025F, "%0.3f"})
        .label("Mash Tun Thermal &Mass:");
    held_within(rows.number("heat_capacity", ratios.heat_capacity),
                {setting_range::heat_capacity, 0.005F, "%6.3f"})
        .label("Malt &Heat Capacity:");
    degrees_row(rows, "grain_temperature", image.grain_temperature, image).label("Default &Grain Temp:");
}

void decoction_rows(Rows& rows, const SystemSettings& image, Ratios& ratios) {
    ratio_row(rows, "thick", ratios.thick, image).label("&Thick:");
    ratio_row(rows, "medium", ratios.medium, image).label("M&edium:");
    ratio_row(rows, "thin", ratios.thin, image).label("Th&in:");
    rows.note("ratio_units", by_volume(image, "Ratio's Are Qts / Lbs", "Ratio's Are L / kg"));
}

std::string volume_per_hour(const SystemSettings& image) {
    const bool by_barrel = is_american(image.volume_units) && is_pro(image);
    return std::string(by_barrel ? "bbl's" : volume_unit(image).full) + " Per Hour";
}

} // namespace

void mash_settings_form(Form& form, SystemSettings& image, std::function<void()> help) {
    const auto ratios = std::make_shared<Ratios>(ratios_of(image));
    mash_water_rows(form.group("Water"), image);
    heat_rows(form.group("Heat"), image, *ratios);
    form.next_column();
    form.group("Default Mash Schedule Type:")
        .choice("default_schedule", image.default_schedule, {"&Simple", "C&omplex"});
    form.group("Evaporation Rate As:")
        .choice("evaporation_by_volume", image.evaporation_by_volume,
                {"% &Per Hour", [&image] { return volume_per_hour(image); }});
    decoction_rows(form.group("Default Decoction Ratios:"), image, *ratios);
    form.group().button("help", "Help", std::move(help));
    form.restore_on_cancel(image);
    form.on_accept([&image, ratios] { store_ratios(*ratios, image); });
}

} // namespace wortlex
