#include "settings/setting_ranges.h"

#include "base/number.h"
#include "settings/screen_colours.h"

#include <algorithm>

namespace wortlex {
namespace {

// The fields are of the user's unit, the file is not: a barrel's gallons, a pound's ounces and the metric
// units lie between, and a field's figure is rounded.
constexpr float gallons_in_barrel = 31, ounces_per_pound = 16, pounds_per_kilogram = 2.3F;
constexpr float metric_rest = 1.1F; // a quart is 0.95 l, the coldest -30 C are -22 F
constexpr float rounding = 0.001F;

struct FigureRange {
    float SystemSettings::*figure;
    SettingRange range;
};

// The least is not looked at where a repair has it.
constexpr SettingRange up_to(float most) {
    return {0, most};
}

constexpr std::array figure_ranges = {
    FigureRange{&SystemSettings::efficiency, up_to(setting_range::percent.high / 100)},
    FigureRange{&SystemSettings::plug_increase, up_to(setting_range::percent.high / 100)},
    FigureRange{&SystemSettings::pellet_increase, up_to(setting_range::percent.high / 100)},
    FigureRange{&SystemSettings::cooling_shrink, up_to(setting_range::cooling_percent.high / 100)},
    FigureRange{&SystemSettings::tun_thermal_mass, setting_range::thermal_mass},
    FigureRange{&SystemSettings::hydrometer_calibration, setting_range::hydrometer_fahrenheit},
    FigureRange{&SystemSettings::hop_storage_temperature,
                {setting_range::fahrenheit.low * metric_rest, setting_range::fahrenheit.high}},
    FigureRange{&SystemSettings::grain_temperature, up_to(setting_range::fahrenheit.high)},
    FigureRange{&SystemSettings::grain_increment, up_to(setting_range::increment.high* pounds_per_kilogram)},
    FigureRange{&SystemSettings::hop_increment,
                up_to(setting_range::increment.high* pounds_per_kilogram* ounces_per_pound)},
    FigureRange{&SystemSettings::batch_size, up_to(setting_range::size.high* gallons_in_barrel)},
    FigureRange{&SystemSettings::wort_size, up_to(setting_range::size.high* gallons_in_barrel)},
    FigureRange{&SystemSettings::kettle_factor, up_to(setting_range::kettle_factor.high)},
    FigureRange{&SystemSettings::tinseth_factor, up_to(setting_range::tinseth_factor.high)},
    FigureRange{&SystemSettings::grain_absorption, setting_range::absorption},
    FigureRange{&SystemSettings::brix_correction, setting_range::brix_correction},
    FigureRange{&SystemSettings::water_zeiss, setting_range::water_zeiss},
    FigureRange{&SystemSettings::water_brix, setting_range::water_brix},
    FigureRange{&SystemSettings::water_ri, setting_range::water_ri},
    FigureRange{&SystemSettings::quarts_per_pound, setting_range::mash_ratio},
    FigureRange{&SystemSettings::sucrose_value, up_to(setting_range::sucrose_value.high)},
    FigureRange{&SystemSettings::dme_scalar, up_to(setting_range::dme_scalar.high)},
    FigureRange{&SystemSettings::grain_water_volume,
                up_to(setting_range::grain_water_volume.high* metric_rest)}};

bool is_within(float value, const SettingRange& range) {
    return value == 0 || (value >= range.low - rounding && value <= range.high + rounding);
}

bool is_within(std::int32_t value, const SettingRange& range) {
    return is_within(static_cast<float>(value), range);
}

bool has_plausible_codes(const SystemSettings& image) {
    auto known = image;
    repair_codes(known);
    if (image.spike_thickness == SpikeThickness{}) known.spike_thickness = {}; // older than the thickness
    return encoded(known, system_settings_layout) == encoded(image, system_settings_layout) &&
           std::max({image.wort_equals_batch, image.evaporation_by_volume, image.use_additional_utilization,
                     image.display_home_bittering, image.use_tool_bitmaps, image.session_name_before_date,
                     image.hide_print_help_bitmaps}) <= 1 &&
           std::max({image.percent_yield_selected, image.view_actual_extract}) <= 1 &&
           is_within(image.save_window_positions, SettingRange{0, 1});
}

bool has_plausible_whole_numbers(const SystemSettings& image) {
    const auto thousandths = [](std::int32_t value, const SettingRange& range) {
        return is_within(narrow(value / 1000.0), range);
    };
    const auto low_half = [](std::int32_t value) { return std::int32_t{static_cast<std::int16_t>(value)}; };
    const auto changes = {low_half(image.first_wort_percent), low_half(image.mash_hop_percent)};
    const auto parts = {image.calibration_red, image.calibration_green, image.calibration_blue,
                        image.color_alpha >> 8};
    const auto ratios = {image.thick_decoction, image.medium_decoction, image.thin_decoction};
    return std::all_of(changes.begin(), changes.end(),
                       [](auto value) { return is_within(value, setting_range::utilization_change); }) &&
           std::all_of(parts.begin(), parts.end(),
                       [](auto value) { return is_within(value, setting_range::calibration); }) &&
           std::all_of(ratios.begin(), ratios.end(),
                       [&](auto value) { return thousandths(value, setting_range::mash_ratio); }) &&
           thousandths(image.malt_heat_capacity, setting_range::heat_capacity) &&
           is_within(image.jpg_quality, setting_range::jpg_quality);
}

bool has_plausible_figures(const SystemSettings& image) {
    return std::all_of(figure_ranges.begin(), figure_ranges.end(),
                       [&](const FigureRange& held) { return is_within(image.*held.figure, held.range); });
}

bool has_plausible_colours(const SystemSettings& image) {
    const auto is_colour = [](std::uint32_t colour) {
        const auto mark = colour & desktop_mark;
        return mark == 0 || mark == desktop_mark;
    };
    return std::all_of(image.foreground.begin(), image.foreground.end(), is_colour) &&
           std::all_of(image.background.begin(), image.background.end(), is_colour);
}

} // namespace

int count_implausible(const SystemSettings& image) {
    auto repaired = image;
    repair(repaired);
    const std::array kinds = {is_line(image.brewer_name) && is_line(image.assistant_name),
                              has_plausible_codes(image), has_plausible_whole_numbers(repaired),
                              has_plausible_figures(repaired), has_plausible_colours(image)};
    return static_cast<int>(std::count(kinds.begin(), kinds.end(), false));
}

} // namespace wortlex
