#include "settings/settings.h"

#include "base/number.h"

namespace wortlex {
namespace {

EfficiencyMode efficiency_mode_of(const SystemSettings& image) {
    if (image.efficiency_method_setting == EfficiencyMethod::method_2) return EfficiencyMode::method_2;
    return image.percent_yield_selected == 1 ? EfficiencyMode::method_1_yield : EfficiencyMode::method_1;
}

std::string_view alpha_source_of(AlphaMode mode) {
    switch (mode) {
    case AlphaMode::global_value:
        return "Global Setting";
    case AlphaMode::from_table:
        return "kv_lovrgb.ldt";
    default:
        return "System Not Using";
    }
}

float from_thousandths(std::int32_t value) {
    return narrow(value / 1000.0);
}

} // namespace

void ApplySettings(SystemSettings& image, Settings& working, bool with_colours) {
    repair(image);
    const auto foreground = working.foreground;
    const auto background = working.background;
    static_cast<SystemSettings&>(working) = image;
    if (!with_colours) {
        working.foreground = foreground;
        working.background = background;
    }
    working.efficiency_mode = efficiency_mode_of(image);
    working.first_wort_change = static_cast<std::int16_t>(image.first_wort_percent);
    working.mash_hop_change = static_cast<std::int16_t>(image.mash_hop_percent);
    working.heat_capacity = from_thousandths(image.malt_heat_capacity);
    working.thick_ratio = from_thousandths(image.thick_decoction);
    working.medium_ratio = from_thousandths(image.medium_decoction);
    working.thin_ratio = from_thousandths(image.thin_decoction);
    working.global_alpha = image.color_alpha & 0xFF;
    working.global_alpha_adjust = image.color_alpha >> 8;
    working.alpha_source = alpha_source_of(image.alpha_mode);
}

void ApplyDialogSettings(SystemSettings& image, Settings& working) {
    image.foreground = working.foreground;
    image.background = working.background;
    ApplySettings(image, working, false);
}

Settings settings_from(SystemSettings& image) {
    Settings working;
    ApplySettings(image, working, true);
    return working;
}

} // namespace wortlex
