// What the mash designer does with its steps.
#pragma once

#include "mash/mash_designer.h"

namespace wortlex {

/// What a step is called, how it is heated and in which colours its chart shows it.
struct StepNaming {
    std::string name; ///< Windows-1252
    StepHeat heat{};
    std::uint32_t step_colour = MashStep().step_colour; ///< 0x00BBGGRR
    std::uint32_t rest_colour = MashStep().rest_colour;
};

inline constexpr std::size_t most_step_name_bytes = 18;

/// What is offered for a new step behind the selected one, and what the selected one has.
StepNaming naming_of_new(const MashDesigner& designer);
StepNaming naming_of_selected(const MashDesigner& designer);

bool may_add_step(const MashDesigner& designer);
/// A new step behind the selected one, which it becomes. Without a name, or with a full list, nothing
/// happens.
void new_step(MashDesigner& designer, const StepNaming& naming);
void rename_step(MashDesigner& designer, const StepNaming& naming);
void delete_step(MashDesigner& designer);

/// Edits of the selected step, in degrees F and minutes. Less than 0 is 0. The start is also the stop.
void set_start(MashDesigner& designer, std::int32_t degrees);
void set_stop(MashDesigner& designer, std::int32_t degrees);
void set_infuse_temperature(MashDesigner& designer, std::int32_t degrees);
void set_rest_minutes(MashDesigner& designer, std::int32_t minutes);
/// Of a decoction held to what it can have been pulled ago.
void set_step_minutes(MashDesigner& designer, std::int32_t minutes);
std::int32_t most_step_minutes(const MashDesigner& designer);

/// The thickness of a decoction, as shown.
void set_thickness(MashDesigner& designer, float shown);
float shown_thickness(const MashDesigner& designer);
/// Quarts per pound from a button, and that of the mash as it is by then.
void press_thickness(MashDesigner& designer, float quarts_per_pound);
void press_current_thickness(MashDesigner& designer);

} // namespace wortlex
