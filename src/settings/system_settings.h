// The image of the settings file: what is read from and written to the disk, as it stands.
#pragma once

#include "base/layout.h"
#include "settings/codes.h"

namespace wortlex {

/// The screen areas that have a colour pair of their own, in the order of the file.
enum class ColorArea : std::uint8_t {
    style_guidelines,
    shown_text,
    shown_numbers,
    ingredient_lists,
    notes,
    entries,
    pick_lists
};
inline constexpr std::size_t color_areas = 7;

/// The block in the settings file and in saved settings files. A fresh one is all zero; the built-in
/// defaults are `WriteDefaultSettings`.
struct SystemSettings {
    Text<255> brewer_name;
    Text<255> assistant_name;
    std::array<std::uint8_t, 765> reserved_510{};
    HopFormulaCode HopFormula{};
    ColorFormula color_formula{};
    ScheduleKind default_schedule{};
    NewSessionDate new_session_date{};
    std::uint8_t wort_equals_batch = 0;
    Units volume_units{};
    std::uint8_t art_scheme = 0; ///< 0 to 4
    Units hop_weight_units{};
    Units weight_units{};
    std::uint8_t evaporation_by_volume = 0; ///< 1: volume per hour, 0: percent per hour
    SystemMode system_mode{};
    StyleBook style_book{};
    std::uint8_t use_additional_utilization = 0; ///< for plug and pellet hops
    DateFormat date_format{};
    Units pressure_units{};
    ColorUnits color_units{};
    PotentialDisplay potential_display{};
    TemperatureUnits temperature_units{};
    std::uint8_t display_home_bittering = 0;
    BitteringUnit bittering_unit{};
    std::uint8_t use_tool_bitmaps = 0;
    std::uint8_t session_name_before_date = 0;
    std::uint8_t hide_print_help_bitmaps = 0; ///< stored inverted: 0 uses them
    std::array<std::uint8_t, 2> reserved_1298{};
    std::int32_t first_wort_percent = 0; ///< change of utilization, -100 to 100
    std::uint32_t sg_precision = 0;      ///< 0, 1, 2: 3, 4, 5 decimals
    EfficiencyMethod efficiency_method_setting{};
    std::uint32_t plato_precision = 0; ///< 0, 1, 2: 1, 2, 3 decimals; also of points and HWE
    ExtractDisplay extract_display{};
    std::uint32_t percent_yield_selected = 0; ///< 1 when potentials are shown as percent yield
    std::uint32_t reserved_1324 = 0;          ///< 1: the hard sucrose entry is ignored
    GravityBase gravity_base{};
    YieldType yield_type{};
    std::int32_t mash_hop_percent = 0;     ///< change of utilization, -100 to 100
    std::uint32_t view_actual_extract = 0; ///< default view of grain lists
    std::int32_t jpg_quality = 0;          ///< 20 to 100
    SpikeThickness spike_thickness{};      ///< of decoctions and infusions in mash charts
    SpikeLine spike_line{};
    std::int32_t calibration_red = 0; ///< -100 to 100, likewise green and blue
    std::int32_t calibration_green = 0;
    std::int32_t calibration_blue = 0;
    std::int32_t reserved_1368 = 0;
    std::int32_t malt_heat_capacity = 0; ///< thousandths
    std::int32_t save_window_positions = 0;
    std::int32_t thick_decoction = 0; ///< thousandths of quarts per pound, likewise medium and thin
    std::int32_t medium_decoction = 0;
    std::int32_t thin_decoction = 0;
    AlphaMode alpha_mode{};
    std::int32_t color_alpha = 0; ///< low byte: global alpha; the rest: global adjust
    float efficiency = 0;         ///< default brewhouse efficiency, 0 to 1
    float tun_thermal_mass = 0;
    float hydrometer_calibration = 0; ///< degrees F
    float grain_increment = 0;        ///< pounds
    float hop_increment = 0;          ///< ounces
    float kettle_factor = 0;          ///< scale of hop utilization by kettle size
    float batch_size = 0;             ///< gallons
    float wort_size = 0;              ///< gallons
    float printer_scale = 0;
    float tinseth_factor = 0;          ///< concentration factor
    float hop_storage_temperature = 0; ///< degrees F
    float grain_absorption = 0;        ///< gallons per pound
    float plug_increase = 0;           ///< of utilization, 0 to 1
    float pellet_increase = 0;         ///< of utilization, 0 to 1
    float cooling_shrink = 0;          ///< fraction lost on cooling
    float brix_correction = 0;
    float water_zeiss = 0; ///< the refractometers' readings of pure water
    float water_brix = 0;
    float water_ri = 0;
    float quarts_per_pound = 0;
    float sucrose_value = 0;      ///< points of a pound in a gallon
    float reference_plato = 0;    ///< of the variable sucrose value
    float grain_temperature = 0;  ///< degrees F
    float dme_scalar = 0;         ///< 0.25 to 4
    float grain_water_volume = 0; ///< quarts that 1 quart of water and 1 pound of grain take
    std::array<std::uint32_t, color_areas> foreground{}; ///< 0x00BBGGRR
    std::array<std::uint8_t, 12> reserved_1528{};
    std::array<std::uint32_t, color_areas> background{};
    std::array<std::uint8_t, 12> reserved_1568{};

    bool operator==(const SystemSettings&) const = default;
};

inline constexpr auto system_settings_layout = layout<SystemSettings, 1580>(
    at(0, &SystemSettings::brewer_name), at(255, &SystemSettings::assistant_name),
    at(510, &SystemSettings::reserved_510), at(1275, &SystemSettings::HopFormula),
    at(1276, &SystemSettings::color_formula), at(1277, &SystemSettings::default_schedule),
    at(1278, &SystemSettings::new_session_date), at(1279, &SystemSettings::wort_equals_batch),
    at(1280, &SystemSettings::volume_units), at(1281, &SystemSettings::art_scheme),
    at(1282, &SystemSettings::hop_weight_units), at(1283, &SystemSettings::weight_units),
    at(1284, &SystemSettings::evaporation_by_volume), at(1285, &SystemSettings::system_mode),
    at(1286, &SystemSettings::style_book), at(1287, &SystemSettings::use_additional_utilization),
    at(1288, &SystemSettings::date_format), at(1289, &SystemSettings::pressure_units),
    at(1290, &SystemSettings::color_units), at(1291, &SystemSettings::potential_display),
    at(1292, &SystemSettings::temperature_units), at(1293, &SystemSettings::display_home_bittering),
    at(1294, &SystemSettings::bittering_unit), at(1295, &SystemSettings::use_tool_bitmaps),
    at(1296, &SystemSettings::session_name_before_date), at(1297, &SystemSettings::hide_print_help_bitmaps),
    at(1298, &SystemSettings::reserved_1298), at(1300, &SystemSettings::first_wort_percent),
    at(1304, &SystemSettings::sg_precision), at(1308, &SystemSettings::efficiency_method_setting),
    at(1312, &SystemSettings::plato_precision), at(1316, &SystemSettings::extract_display),
    at(1320, &SystemSettings::percent_yield_selected), at(1324, &SystemSettings::reserved_1324),
    at(1328, &SystemSettings::gravity_base), at(1332, &SystemSettings::yield_type),
    at(1336, &SystemSettings::mash_hop_percent), at(1340, &SystemSettings::view_actual_extract),
    at(1344, &SystemSettings::jpg_quality), at(1348, &SystemSettings::spike_thickness),
    at(1352, &SystemSettings::spike_line), at(1356, &SystemSettings::calibration_red),
    at(1360, &SystemSettings::calibration_green), at(1364, &SystemSettings::calibration_blue),
    at(1368, &SystemSettings::reserved_1368), at(1372, &SystemSettings::malt_heat_capacity),
    at(1376, &SystemSettings::save_window_positions), at(1380, &SystemSettings::thick_decoction),
    at(1384, &SystemSettings::medium_decoction), at(1388, &SystemSettings::thin_decoction),
    at(1392, &SystemSettings::alpha_mode), at(1396, &SystemSettings::color_alpha),
    at(1400, &SystemSettings::efficiency), at(1404, &SystemSettings::tun_thermal_mass),
    at(1408, &SystemSettings::hydrometer_calibration), at(1412, &SystemSettings::grain_increment),
    at(1416, &SystemSettings::hop_increment), at(1420, &SystemSettings::kettle_factor),
    at(1424, &SystemSettings::batch_size), at(1428, &SystemSettings::wort_size),
    at(1432, &SystemSettings::printer_scale), at(1436, &SystemSettings::tinseth_factor),
    at(1440, &SystemSettings::hop_storage_temperature), at(1444, &SystemSettings::grain_absorption),
    at(1448, &SystemSettings::plug_increase), at(1452, &SystemSettings::pellet_increase),
    at(1456, &SystemSettings::cooling_shrink), at(1460, &SystemSettings::brix_correction),
    at(1464, &SystemSettings::water_zeiss), at(1468, &SystemSettings::water_brix),
    at(1472, &SystemSettings::water_ri), at(1476, &SystemSettings::quarts_per_pound),
    at(1480, &SystemSettings::sucrose_value), at(1484, &SystemSettings::reference_plato),
    at(1488, &SystemSettings::grain_temperature), at(1492, &SystemSettings::dme_scalar),
    at(1496, &SystemSettings::grain_water_volume), at(1500, &SystemSettings::foreground),
    at(1528, &SystemSettings::reserved_1528), at(1540, &SystemSettings::background),
    at(1568, &SystemSettings::reserved_1568));

/// Whether a brewery is served, not a kitchen.
inline bool is_pro(const SystemSettings& image) {
    return image.system_mode == SystemMode::pro_brewer;
}

/// The built-in defaults.
SystemSettings WriteDefaultSettings();

/// Puts those of the built-in defaults in place of codes that are none.
void repair_codes(SystemSettings& image);

/// Puts usable values in place of those that a damaged or older file may hold: zero or negative sizes,
/// factors and ratios, codes that are none, figures that are no number.
void repair(SystemSettings& image);

} // namespace wortlex
