#include "settings/new_brewery.h"

#include "base/files.h"
#include "settings/screen_colours.h"
#include "settings/system_files.h"

#include <filesystem>

namespace wortlex {

SystemSettings new_brewery_settings() {
    auto settings = WriteDefaultSettings();
    set_colours(settings, colours_of(ColourPreset::desktop));
    settings.efficiency = 0.72F;
    return settings;
}

void take_units_of_country(const std::string& data_folder, bool is_metric) {
    const auto mark = data_folder + std::string(new_brewery_file);
    std::error_code error;
    if (!std::filesystem::exists(mark, error)) return;
    auto settings = LoadSystemFiles(data_folder).settings;
    if (is_metric && settings == new_brewery_settings()) {
        for (const auto units : {&SystemSettings::volume_units, &SystemSettings::hop_weight_units,
                                 &SystemSettings::weight_units, &SystemSettings::pressure_units})
            settings.*units = Units::metric;
        settings.temperature_units = TemperatureUnits::celsius;
        SaveSettingsFile(find_data_file(data_folder, "WlxMSys.DAT"), settings);
    }
    std::filesystem::remove(mark, error);
}

} // namespace wortlex
