// Kinds of rows that several settings dialogs share.
#pragma once

#include "forms/form.h"
#include "settings/setting_ranges.h"

namespace wortlex {

/// What a number is held within at once, and how it looks.
struct HeldWithin {
    SettingRange range;
    float step;
    const char* format;
};
NumberRow& held_within(NumberRow& row, const HeldWithin& limits);

/// A fraction, edited in whole percents. The range is in percent.
IntegerRow& percent_row(Rows& rows, std::string key, float& fraction,
                        const SettingRange& range = setting_range::percent);

/// A percentage that is kept as a whole number and may be a decrease: -100 to 100.
NumberRow& change_row(Rows& rows, std::string key, std::int32_t& percent);

/// Degrees F, edited in the unit that `image` asks for: -21 to 212 F or -30 to 100 C.
NumberRow& degrees_row(Rows& rows, std::string key, float& fahrenheit, const SystemSettings& image);

bool has_metric_volumes(const SystemSettings& image);

} // namespace wortlex
