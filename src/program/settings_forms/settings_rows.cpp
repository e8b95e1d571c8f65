#include "program/settings_forms/settings_rows.h"

#include "base/number.h"
#include "measures/unit_words.h"
#include "measures/units.h"

namespace wortlex {

NumberRow& held_within(NumberRow& row, const HeldWithin& limits) {
    return row.range(limits.range.low, limits.range.high)
        .step(limits.step)
        .format(limits.format)
        .outside(Outside::clamp);
}

IntegerRow& percent_row(Rows& rows, std::string key, float& fraction, const SettingRange& range) {
    return rows
        .integer(std::move(key), {[&fraction] { return whole_percent(fraction); },
                                  [&fraction](std::int32_t percent) { fraction = narrow(percent / 100.0); }})
        .range(static_cast<std::int32_t>(range.low), static_cast<std::int32_t>(range.high))
        .step(1)
        .outside(Outside::clamp)
        .unit("%");
}

NumberRow& change_row(Rows& rows, std::string key, std::int32_t& percent) {
    return held_within(rows.signed_number(std::move(key), percent),
                       {setting_range::utilization_change, 5, "%0.0f"})
        .unit("%");
}

NumberRow& degrees_row(Rows& rows, std::string key, float& fahrenheit, const SystemSettings& image) {
    const auto celsius = [&image] { return image.temperature_units == TemperatureUnits::celsius; };
    return rows.signed_number(std::move(key), fahrenheit)
        .shown_as([celsius](float stored) { return celsius() ? celsius_from_fahrenheit(stored) : stored; },
                  [celsius](float shown) { return celsius() ? fahrenheit_from_celsius(shown) : shown; })
        .range([celsius] { return (celsius() ? setting_range::celsius : setting_range::fahrenheit).low; },
               [celsius] { return (celsius() ? setting_range::celsius : setting_range::fahrenheit).high; })
        .step(1.0F)
        .format("%6.2f")
        .outside(Outside::clamp)
        .unit([celsius] { return words_of(celsius() ? Unit::celsius : Unit::fahrenheit).usual; });
}

bool has_metric_volumes(const SystemSettings& image) {
    return image.volume_units == Units::metric;
}

} // namespace wortlex
