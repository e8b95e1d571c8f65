// The page of a free designer's schedule.
#pragma once

#include "mash/mash_designer.h"
#include "page/page.h"

namespace wortlex {

/// In the units of the designer.
PrintRequest mash_designer_printout(const MashDesigner& designer);

} // namespace wortlex
