#include "program/settings_forms/gauge_settings.h"

#include "measures/units.h"
#include "program/settings_forms/settings_rows.h"

namespace wortlex {
namespace {

constexpr std::string_view really_reset = "Really reset the settings to the defaults shipped with Wortlex "
                                          "for refractometer water calibration values?";

// One temperature in two fields, each in its own unit.
void temperature_rows(Rows& rows, SystemSettings& image) {
    rows.note("calibration_note", "Hydrometer Calibration Temperature:");
    held_within(rows.number("fahrenheit", image.hydrometer_calibration),
                {setting_range::hydrometer_fahrenheit, 1, "%6.2f"})
        .label("&F");
    held_within(rows.number("celsius", image.hydrometer_calibration), {{0, 100}, 1, "%6.2f"})
        .label("&C")
        .shown_as(celsius_from_fahrenheit, fahrenheit_from_celsius);
}

struct WaterField {
    const char* key;
    const char* label;
    float SystemSettings::*value;
    SettingRange range;
    float step;
    const char* format;
};

constexpr std::array water_fields = {WaterField{"zeiss", "&Zeiss Refractometer", &SystemSettings::water_zeiss,
                                                setting_range::water_zeiss, 0.05F, "%0.2f"},
                                     WaterField{"brix", "&Brix Refractometer", &SystemSettings::water_brix,
                                                setting_range::water_brix, 0.05F, "%0.2f"},
                                     WaterField{"ri", "R&I Refractometer", &SystemSettings::water_ri,
                                                setting_range::water_ri, 0.0001F, "%0.5f"}};

void water_rows(Rows& rows, SystemSettings& image) {
    for (const auto& field : water_fields)
        held_within(rows.signed_number(field.key, image.*field.value),
                    {field.range, field.step, field.format})
            .label(field.label);
}

} // namespace

void reset_gauges(SystemSettings& image, Prompts& prompts) {
    if (prompts.ask_yes_no({.text = really_reset, .icon = Icon::question}) != Answer::yes) return;
    const auto shipped = WriteDefaultSettings();
    image.brix_correction = shipped.brix_correction;
    image.water_zeiss = shipped.water_zeiss;
    image.water_brix = shipped.water_brix;
    image.water_ri = shipped.water_ri;
    image.hydrometer_calibration = shipped.hydrometer_calibration;
}

void gauge_settings_form(Form& form, SystemSettings& image, Prompts& prompts, std::function<void()> help) {
    temperature_rows(form.group("Hydrometer"), image);
    held_within(form.group("Refractometers").number("brix_correction", image.brix_correction),
                {setting_range::brix_correction, 0.005F, "%0.3f"})
        .label("Bri&x Correction Factor");
    water_rows(form.group("Water Calibration"), image);
    auto& buttons = form.group();
    buttons.button("reset", "&Reset To Wortlex Defaults", [&] { reset_gauges(image, prompts); });
    buttons.button("help", "&Help", std::move(help));
    form.restore_on_cancel(image);
}

} // namespace wortlex
