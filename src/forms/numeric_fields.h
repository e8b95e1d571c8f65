// The one family behind every numeric field: show a value, follow the user's typing, step by the arrows. A
// variable never takes anything but a valid value.
#pragma once

#include "forms/text_field.h"
#include "settings/settings.h"

#include <string_view>

namespace wortlex {

/// Where a number may lie, both ends included.
struct Range {
    float low = 0;
    float high = 0;
};

/// `step` is what an arrow adds or takes.
struct SpinRange {
    float low = 0;
    float high = 0;
    float step = 1;
};

/// The arrow of a spin control; `none` only reads the field.
enum class Spin { up = 0, down = 1, none = 2 };

/// The printf pattern of an SG or Plato field, by the decimals that the settings ask for.
std::string sg_pattern(int width, const Settings& settings);
std::string plato_pattern(int width, const Settings& settings);

void show_float(TextField& field, float value, std::string_view pattern);
void show_int(TextField& field, std::int32_t value, std::string_view pattern);
/// Through the truncation of its scale, to five and three decimals, and shown by the settings.
void show_sg(TextField& field, float value, int width, const Settings& settings);
void show_plato(TextField& field, float value, int width, const Settings& settings);

/// Each follows a change of the field's text and answers whether `value` changed. At most `length` + 2
/// characters count (SG and Plato: plus their extra decimals). A character that no number has is thrown out
/// again, and with it what follows; as the first one it brings the old value back. A number outside the range
/// is left standing and changes nothing.
bool typed_float(TextField& field, float& value, const Range& range, int length);
/// The same, with a minus sign allowed.
bool typed_signed_float(TextField& field, float& value, const Range& range, int length);
bool typed_sg(TextField& field, float& value, const Range& range, int length, const Settings& settings);
bool typed_plato(TextField& field, float& value, const Range& range, int length, const Settings& settings);
bool typed_int(TextField& field, std::int32_t& value, std::int32_t low, std::int32_t high, int length);

/// 221 F or 105 C.
std::int32_t highest_temperature(TemperatureUnits units);

/// Whole degrees of the unit shown, 0 to the highest. Alone of the family it pulls a number back into its
/// range and rewrites the field.
bool typed_temperature(TemperatureUnits units, TextField& field, std::int32_t& value, int length);

/// Each reads the field, takes its number if it is in range, steps, and answers whether `value` changed. A
/// step starts inside the range and may end less than a step outside.
bool spin_float(TextField& field, float& value, const SpinRange& range, int length, Spin direction,
                std::string_view pattern);
bool spin_sg(TextField& field, float& value, const SpinRange& range, int length, Spin direction, int width,
             const Settings& settings);
bool spin_plato(TextField& field, float& value, const SpinRange& range, int length, Spin direction, int width,
                const Settings& settings);
bool spin_int(TextField& field, std::int32_t& value, const SpinRange& range, int length, Spin direction,
              std::string_view pattern);
bool spin_temperature(TemperatureUnits units, TextField& field, std::int32_t& value, int length,
                      Spin direction);

} // namespace wortlex
