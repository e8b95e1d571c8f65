// The page of a simple mash schedule.
#pragma once

#include "mash/simple_mash_form.h"
#include "program/program.h"

namespace wortlex {

/// The schedule under work, of the live recipe.
PrintRequest simple_mash_printout(const Program& program, const SimpleMashWork& work);

} // namespace wortlex
