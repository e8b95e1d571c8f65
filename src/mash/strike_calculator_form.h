// The form of the strike water calculator.
#pragma once

#include "forms/form.h"
#include "mash/strike_calculator.h"

#include <array>
#include <string_view>

namespace wortlex {

struct StrikeActions {
    std::function<void()> print; ///< empty, as the next: disabled
    std::function<void()> help;
};

/// Edits `calculator`, which must outlive the form. A line of the window has a field in each unit: the keys
/// of `strike_lines`, of which the first bears the label.
void strike_calculator_form(Form& form, StrikeCalculator& calculator, const Settings& settings,
                            StrikeActions actions = {});

inline constexpr std::array<std::array<std::string_view, 2>, 7> strike_lines = {
    {{"pounds", "kilograms"},
     {"quarts", "litres"},
     {"quarts_per_pound", "litres_per_kilogram"},
     {"wanted_fahrenheit", "wanted_celsius"},
     {"grain_fahrenheit", "grain_celsius"},
     {"strike_fahrenheit", "strike_celsius"},
     {"mash_gallons", "mash_litres"}}};

} // namespace wortlex
