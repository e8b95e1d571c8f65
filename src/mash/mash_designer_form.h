// The form of the mash designer, in its three forms.
#pragma once

#include "base/ports/prompts.h"
#include "forms/form.h"
#include "mash/step_editing.h"

namespace wortlex {

/// An empty one is no part of the window, or belongs to one that is not there: its button is disabled.
struct DesignerActions {
    /// Asks what a step is to be; nothing if the user leaves it. The first one can only be an infusion.
    std::function<std::optional<StepNaming>(const StepNaming& naming, bool is_first)> ask_naming{};
    std::function<void()> load{};
    std::function<void()> save{};
    std::function<void()> revert{}; ///< to the simple schedule, of a document
    std::function<void()> graph{};
    std::function<void()> print{};
    std::function<void()> help{};
};

/// Edits `designer`, which must outlive the form.
void mash_designer_form(Form& form, MashDesigner& designer, DesignerActions actions = {});

/// The name, type and colours of a step, of `naming`, which must outlive the form.
void step_name_form(Form& form, StepNaming& naming, bool is_first, Prompts& prompts);

} // namespace wortlex
