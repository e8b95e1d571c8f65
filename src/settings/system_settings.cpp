#include "settings/system_settings.h"

#include <cmath>

namespace wortlex {
namespace {

void if_zero(std::int32_t& value, std::int32_t usual) {
    if (value == 0) value = usual;
}

void if_zero(float& value, float usual) {
    if (value == 0 || !std::isfinite(value)) value = usual;
}

void if_not_positive(float& value, float usual) {
    if (value <= 0 || !std::isfinite(value)) value = usual;
}

template <class Code>
void if_unknown(Code& code, Code first, Code last, Code usual) {
    if (code < first || code > last) code = usual;
}

// The figures that may be zero or less.
void repair_figures(SystemSettings& image, const SystemSettings& usual) {
    for (const auto figure :
         {&SystemSettings::efficiency, &SystemSettings::tun_thermal_mass,
          &SystemSettings::hydrometer_calibration, &SystemSettings::hop_storage_temperature,
          &SystemSettings::plug_increase, &SystemSettings::pellet_increase, &SystemSettings::brix_correction,
          &SystemSettings::water_zeiss, &SystemSettings::water_brix, &SystemSettings::water_ri})
        if (!std::isfinite(image.*figure)) image.*figure = usual.*figure;
}

} // namespace

SystemSettings WriteDefaultSettings() {
    SystemSettings image;
    image.wort_equals_batch = 1;
    image.volume_units = Units::american;
    image.hop_weight_units = Units::american;
    image.weight_units = Units::american;
    image.pressure_units = Units::american;
    image.temperature_units = TemperatureUnits::fahrenheit;
    image.first_wort_percent = 10;
    image.jpg_quality = 100;
    image.spike_thickness = SpikeThickness::thin;
    image.reserved_1368 = 1;
    image.malt_heat_capacity = 400;
    image.save_window_positions = 1;
    image.thick_decoction = 650;
    image.medium_decoction = 1000;
    image.thin_decoction = 1500;
    image.alpha_mode = AlphaMode::global_value;
    image.color_alpha = 255;
    image.efficiency = 0.85F;
    image.hydrometer_calibration = 60.0F;
    image.grain_increment = 0.5F;
    image.hop_increment = 0.25F;
    image.kettle_factor = 1.0F;
    image.batch_size = 5.0F;
    image.wort_size = 5.0F;
    image.printer_scale = 1.0F;
    image.tinseth_factor = 1.3F;
    image.hop_storage_temperature = 60.0F;
    image.grain_absorption = 0.2F;
    image.plug_increase = 0.02F;
    image.pellet_increase = 0.1F;
    image.cooling_shrink = 0.04F;
    image.brix_correction = 1.04F;
    image.water_zeiss = 14.5F;
    image.water_ri = 1.33299F;
    image.quarts_per_pound = 1.0F;
    image.sucrose_value = 46.21F;
    image.reference_plato = 8.0F;
    image.grain_temperature = 80.0F;
    image.dme_scalar = 2.0F;
    image.foreground = {0x00FFFF, 0x00FFFF, 0xFFFFFF, 0xFFFFFF, 0x00FFFF, 0x000080, 0xFFFFFF};
    image.background = {0x800000, 0x006400, 0x000080, 0x646464, 0x000050, 0xFFFFFF, 0x800000};
    return image;
}

void repair_codes(SystemSettings& image) {
    const auto usual = WriteDefaultSettings();
    // clang-format off
    const auto known = [&](auto SystemSettings::*code, auto last) {
        if_unknown(image.*code, decltype(last){}, last, usual.*code);
    };
    // clang-format on
    known(&SystemSettings::HopFormula, HopFormulaCode::Generic);
    known(&SystemSettings::color_formula, ColorFormula::Daniels);
    known(&SystemSettings::default_schedule, ScheduleKind::complex);
    known(&SystemSettings::new_session_date, NewSessionDate::tomorrow);
    for (const auto units : {&SystemSettings::volume_units, &SystemSettings::hop_weight_units,
                             &SystemSettings::weight_units, &SystemSettings::pressure_units})
        known(units, Units::american);
    known(&SystemSettings::system_mode, SystemMode::pro_brewer);
    known(&SystemSettings::style_book, StyleBook::bjcp);
    known(&SystemSettings::date_format, DateFormat::day_name_year);
    known(&SystemSettings::color_units, ColorUnits::ebc_traditional);
    known(&SystemSettings::potential_display, PotentialDisplay::percent_yield);
    known(&SystemSettings::temperature_units, TemperatureUnits::fahrenheit);
    known(&SystemSettings::bittering_unit, BitteringUnit::hbu);
    known(&SystemSettings::efficiency_method_setting, EfficiencyMethod::method_2);
    known(&SystemSettings::extract_display, ExtractDisplay::percent);
    known(&SystemSettings::gravity_base, GravityBase::mass);
    known(&SystemSettings::yield_type, YieldType::coarse_as_is);
    known(&SystemSettings::spike_line, SpikeLine::solid);
    if_unknown(image.spike_thickness, SpikeThickness::thin, SpikeThickness::thick, usual.spike_thickness);
    if_unknown<std::uint8_t>(image.art_scheme, 0, 4, usual.art_scheme);
    for (const auto precision : {&SystemSettings::sg_precision, &SystemSettings::plato_precision})
        known(precision, std::uint32_t{2});
}

void repair(SystemSettings& image) {
    const auto usual = WriteDefaultSettings();
    repair_codes(image);
    repair_figures(image, usual);
    if_zero(image.cooling_shrink, 0.04F);
    if_not_positive(image.sucrose_value, 46.21F);
    if_not_positive(image.reference_plato, 8.0F);
    if_not_positive(image.grain_temperature, 80.0F);
    if_not_positive(image.dme_scalar, 2.0F);
    if_not_positive(image.quarts_per_pound, 1.0F);

    if_zero(image.jpg_quality, 100);
    if (image.jpg_quality < 20) image.jpg_quality = 20;
    if_zero(image.malt_heat_capacity, 400);
    if_zero(image.thick_decoction, 650);
    if_zero(image.medium_decoction, 1000);
    if_zero(image.thin_decoction, 1500);
    if_zero(image.color_alpha, 255);
    if_not_positive(image.grain_increment, 1.0F);
    if_not_positive(image.hop_increment, 1.0F);
    if_not_positive(image.kettle_factor, 1.0F);
    if_not_positive(image.printer_scale, 1.0F);
    if_not_positive(image.tinseth_factor, 1.0F);
    if_not_positive(image.batch_size, 5.0F);
    if_not_positive(image.wort_size, image.batch_size);
    if_not_positive(image.grain_absorption, 0.2F);
    if_zero(image.grain_water_volume, 1.32F);
}

} // namespace wortlex
