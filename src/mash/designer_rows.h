// The parts of the mash designer's form that show its steps.
#pragma once

#include "mash/mash_designer_form.h"

namespace wortlex {

bool has_step(const MashDesigner& designer);
bool is_heated_by(const MashDesigner& designer, StepHeat heat);

/// The list, whose titles follow the selected step, and what adds to it.
void step_list_rows(Rows& rows, MashDesigner& designer, const DesignerActions& actions);

/// What is edited of the selected step.
void step_rows(Rows& rows, MashDesigner& designer);

} // namespace wortlex
