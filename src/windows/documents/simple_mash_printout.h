// The page of a simple mash schedule.
#pragma once

#include "brewing/beer_colour.h"
#include "documents/document_recalculation.h"
#include "mash/simple_mash_form.h"
#include "page/page.h"

namespace wortlex {

/// The schedule under work, of the recipe.
PrintRequest simple_mash_printout(const OpenDocument& open, const ColorTable& colours,
                                  const SimpleMashWork& work);

/// The complex schedule, of either kind of document.
PrintRequest complex_mash_printout(const OpenDocument& open, const ColorTable& colours);

} // namespace wortlex
