// What a document says of its yeast.
#pragma once

#include "forms/form.h"
#include "records/ingredients/ingredients.h"

namespace wortlex {

/// Read-only, and blank as long as there is none.
void yeast_rows(Rows& rows, const YeastRecord& yeast);

} // namespace wortlex
