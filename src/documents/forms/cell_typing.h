// What typing into a cell of the malt or hop list makes of its line: the same as the dialog of the line
// would.
#pragma once

#include "documents/work/recipe_lines.h"
#include "forms/rows.h"

namespace wortlex {

/// Weight and share of a malt; a share leaves the weight of all malts as it is. The editor must outlive them.
CellTyping malt_cells(RecipeEditor& editor);

/// Alpha, weight and boil time of a hop.
CellTyping hop_cells(RecipeEditor& editor);

} // namespace wortlex
