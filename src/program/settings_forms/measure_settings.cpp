#include "program/settings_forms/measure_settings.h"

#include "base/number.h"
#include "measures/unit_words.h"
#include "measures/units.h"
#include "program/settings_forms/settings_rows.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr float least_equal_size = 0.5F; // gallons
constexpr double grams_per_entered_ounce = 28.3495;

// An image with the units and the mode that the conversions ask for.
Settings hop_units_of(const SystemSettings& image) {
    Settings units;
    units.hop_weight_units = image.hop_weight_units;
    units.system_mode = image.system_mode;
    return units;
}

float shown_grain(float pounds, const SystemSettings& image) {
    return is_american(image.weight_units) ? pounds : narrow(pounds * grams_per_pound / 1000);
}

// Entered kilograms go by the exact ounce, shown ones by the rounded pound.
float stored_grain(float shown, const SystemSettings& image) {
    return is_american(image.weight_units) ? shown : narrow(shown * 1000.0 / grams_per_entered_ounce / 16);
}

void units_row(Rows& rows, const char* key, const char* label, Units& units) {
    rows.choice(key, units, {"American", "Metric"}).codes({1, 0}).label(label);
}

void units_rows(Rows& rows, SystemSettings& image) {
    rows.choice("system_mode", image.system_mode, {"Home Brewer", "Pro Brewer"}).label("&System Mode:");
    units_row(rows, "volume_units", "&Fluid Measurements:", image.volume_units);
    units_row(rows, "weight_units", "&Grain Measurements:", image.weight_units);
    units_row(rows, "hop_weight_units", "&Hop Measurements:", image.hop_weight_units);
    units_row(rows, "pressure_units", "&Pressure (CO2) Measurements:", image.pressure_units);
    rows.choice("temperature_units", image.temperature_units, {"Fahrenheit", "Celsius"})
        .codes({1, 0})
        .label("&Temperature Measurements:");
}

// One of the two sizes, which brings `twin` with it while both are to be equal.
NumberRow& size_row(Rows& rows, const char* key, float& gallons, float& twin, const SystemSettings& image) {
    const auto set = [&gallons, &twin, &image](float value) {
        gallons = value;
        if (image.wort_equals_batch != 0) twin = value;
    };
    return rows.signed_number(key, {[&gallons] { return gallons; }, set})
        .shown_as(
            [&image](float stored) { return to_shown_volume(stored, image.volume_units, image.system_mode); },
            [&image](float shown) { return from_shown_volume(shown, image.volume_units, image.system_mode); })
        .range(setting_range::size.low, setting_range::size.high)
        .step(1.0F)
        .outside(Outside::clamp)
        .unit([&image] { return volume_unit(image).full; });
}

void equalise_sizes(SystemSettings& image) {
    if (image.wort_equals_batch == 0) return;
    image.batch_size = std::max(image.batch_size, least_equal_size);
    image.wort_size = image.batch_size;
}

NumberRow& increment_row(Rows& rows, const char* key, float& increment) {
    return rows.number(key, increment)
        .range(setting_range::increment.low, setting_range::increment.high)
        .step(0.05F)
        .outside(Outside::clamp);
}

void size_rows(Rows& rows, SystemSettings& image) {
    size_row(rows, "batch_size", image.batch_size, image.wort_size, image).label("Default &Batch Size:");
    size_row(rows, "wort_size", image.wort_size, image.batch_size, image)
        .label("Default &Wort Size:")
        .enabled([&image] { return image.wort_equals_batch == 0; });
    rows.check("wort_equals_batch", image.wort_equals_batch)
        .label("Wort Size Always &Equals Batch Size.")
        .changed([&image] { equalise_sizes(image); });
    increment_row(rows, "grain_increment", image.grain_increment)
        .label("Default Grain &Increment:")
        .shown_as([&image](float stored) { return shown_grain(stored, image); },
                  [&image](float shown) { return stored_grain(shown, image); })
        .unit([&image] { return grain_unit(image).usual; });
    increment_row(rows, "hop_increment", image.hop_increment)
        .label("Default H&op Increment:")
        .shown_as([&image](float stored) { return hop_to_shown(stored, hop_units_of(image)); },
                  [&image](float shown) { return shown_to_hop(shown, hop_units_of(image)); })
        // A home brewer's increment is a small part of a pound.
        .format([&image] { return is_pro(image) ? "%0.4f" : "%0.2f"; })
        .unit([&image] { return hop_unit(image).full; });
}

} // namespace

void measure_settings_form(Form& form, SystemSettings& image, std::function<void()> help) {
    units_rows(form.group("Measurements"), image);
    auto& sg = form.group("&Decimal Precision for SG Readings:");
    sg.choice("sg_precision", image.sg_precision, {"3", "4", "5"});
    sg.note("sg_precision_note", "(Style Guidlines are locked at 3. Refractometer Readings are locked at 5)");
    form.next_column();
    size_rows(form.group("Sizes"), image);
    auto& plato = form.group("Decimal Precision for Pl&ato, Points and HWE Readings:");
    plato.choice("plato_precision", image.plato_precision, {"1", "2", "3"});
    plato.note("plato_precision_note", "(Refractometer Readings are locked at 3)");
    form.group().button("help", "Help", std::move(help));
    form.restore_on_cancel(image);
}

} // namespace wortlex
