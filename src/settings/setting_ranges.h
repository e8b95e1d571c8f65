// Within what the figures of the settings stay: the fields of their windows hold them there, and a file with
// others is none of ours.
#pragma once

#include "settings/system_settings.h"

namespace wortlex {

struct SettingRange {
    float low, high;
};

/// Those of the metric fields are of what is shown; none is narrower in what it stores.
namespace setting_range {
inline constexpr SettingRange utilization_change{-100, 100}; // percent
inline constexpr SettingRange calibration{-100, 100};        // of a colour's part, and of all alpha
inline constexpr SettingRange jpg_quality{20, 100};
inline constexpr SettingRange heat_capacity{0.1F, 1};
inline constexpr SettingRange mash_ratio{0, 100};
inline constexpr SettingRange percent{0, 100};
inline constexpr SettingRange cooling_percent{1, 100};
inline constexpr SettingRange thermal_mass{0, 10};
inline constexpr SettingRange hydrometer_fahrenheit{32, 212};
inline constexpr SettingRange fahrenheit{-21, 212};
inline constexpr SettingRange celsius{-30, 100};
inline constexpr SettingRange increment{0.05F, 10000};
inline constexpr SettingRange size{0, 10000};
inline constexpr SettingRange kettle_factor{0.5F, 100};
inline constexpr SettingRange tinseth_factor{1, 2};
inline constexpr SettingRange absorption{0, 2};
inline constexpr SettingRange brix_correction{1, 2};
inline constexpr SettingRange water_zeiss{-1000, 1000};
inline constexpr SettingRange water_brix{-200, 200};
inline constexpr SettingRange water_ri{-2, 2};
inline constexpr SettingRange sucrose_value{1, 50};
inline constexpr SettingRange dme_scalar{0.25F, 4};
inline constexpr SettingRange grain_water_volume{1, 5};
} // namespace setting_range

/// How many of its five kinds of fields an image has with what no window gives: names that do not end, codes
/// that are not there and, once it is repaired, whole numbers, figures and colours out of their ranges. What
/// is left at zero never counts against it.
int count_implausible(const SystemSettings& image);

} // namespace wortlex
