// What one malt line gives to the gravity and the colour of its recipe.
#pragma once

#include "documents/document_recalculation.h"
#include "forms/form.h"

namespace wortlex {

/// Shows line `line` of `open`, which must be there, with the figures as they stand. Both must outlive the
/// form.
void malt_contribution_form(Form& form, const OpenDocument& open, std::size_t line);

} // namespace wortlex
