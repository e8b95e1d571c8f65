// What the pages beside a recipe hold, in a line each.
#pragma once

#include "documents/document_recalculation.h"
#include "forms/form.h"

namespace wortlex {

/// Yeast, water, extras and notes, to be read; blank where there is nothing.
void summary_rows(Rows& rows, const BrewDocument& document);

} // namespace wortlex
